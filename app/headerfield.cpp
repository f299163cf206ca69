#include "headerfield.h"

#include "checkedlineedit.h"
#include "frameformat.h"
#include "receivedheader.h"

static QString headerFault(const QString &text)
{
    if (parseStartBytes(text)) {
        return {};
    }
    return HeaderField::tr(
        "No start bytes: write two, as in 0x5A,0xA5. Until then frames begin with A5 5A.");
}

HeaderField::HeaderField(CheckedLineEdit &field, FrameFormat &format, ReceivedHeader &received,
                         QObject *parent)
    : QObject(parent)
{
    const auto handOn = [&format, &received](const QString &text) {
        format.setHeaderText(text);
        received.setText(text);
    };
    field.setCheck(headerFault);
    handOn(field.text());
    connect(&field, &QLineEdit::textChanged, this, handOn);
    connect(&field, &QLineEdit::textEdited, &received, &ReceivedHeader::noteTyping);
}
