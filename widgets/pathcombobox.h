#pragma once

#include <QComboBox>

/// A combo box for paths: where one is too long to be shown, its end is. So it is with the
/// place-holder that stands for none.
class PathComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent *event) override;
};
