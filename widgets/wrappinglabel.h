#pragma once

#include <QLabel>

/// A label that wraps its text in whatever room there is, and asks for none: what doesn't fit is in
/// its tool tip. The Tab key leads straight to its link.
class WrappingLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    bool hasHeightForWidth() const override { return false; }

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    bool showsAll() const;
};

/// The text with a place for a line break (a zero-width space) after so many characters that had
/// none. What can be wrapped anyway is left as it is, so that copying it gives what was told.
QString withLineBreaks(const QString &text, int longest);
