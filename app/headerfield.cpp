#include "app/headerfield.h"

#include "session/session.h"
#include "widgets/checkedlineedit.h"

static QString headerFault(const QString &text)
{
    if (parseStartBytes(text)) {
        return {};
    }
    return HeaderField::tr(
        "No start bytes: write two, as in 0x5A,0xA5. Until then frames begin with A5 5A.");
}

HeaderField::HeaderField(CheckedLineEdit &field, Session &session, QObject *parent)
    : QObject(parent)
{
    field.setCheck(headerFault);
    session.setHeaderText(field.text());
    connect(&field, &QLineEdit::textChanged, &session, &Session::setHeaderText);
    connect(&field, &QLineEdit::textEdited, &session.receivedHeader(), &ReceivedHeader::noteTyping);
}
