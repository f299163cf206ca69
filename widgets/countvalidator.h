#pragma once

#include <QIntValidator>

/// A whole number from 0, or from a bottom, to a top, written in plain digits whatever the locale.
/// What no further digit can mend is refused while it is typed, and so is a zero in front of a
/// number that can't be 0.
class CountValidator : public QIntValidator
{
    Q_OBJECT

public:
    explicit CountValidator(int top, QObject *parent = nullptr);
    CountValidator(int bottom, int top, QObject *parent = nullptr);

    State validate(QString &text, int &position) const override;
};
