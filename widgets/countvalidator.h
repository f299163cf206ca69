#pragma once

#include <QIntValidator>

/// A whole number from 0 to a top, written in plain digits whatever the locale. What no further
/// digit can mend is refused while it is typed.
class CountValidator : public QIntValidator
{
    Q_OBJECT

public:
    explicit CountValidator(int top, QObject *parent = nullptr);

    State validate(QString &text, int &position) const override;
};
