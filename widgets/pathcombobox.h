#pragma once

#include <QComboBox>

/// A combo box for paths: where one is too long to be shown, its end is. Of a place-holder that is
/// too long, what stands before its comma is shown.
class PathComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    /// The current text, or the place-holder for none, as it is shown in a width in pixels.
    QString textFor(int width) const;

protected:
    void paintEvent(QPaintEvent *event) override;
};
