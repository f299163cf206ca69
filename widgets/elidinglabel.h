#pragma once

#include <QLabel>

/// A label of one line that asks for no room: where its text is too long, the middle is left out.
class ElidingLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
