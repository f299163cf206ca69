#include "app/headerfield.h"

#include "session/session.h"

static QString headerFault(const QString &text)
{
    if (parseStartBytes(text)) {
        return {};
    }
    return HeaderField::tr(
        "No start bytes: write two, as in 0x5A,0xA5. Until then frames begin with A5 5A.");
}

HeaderField::HeaderField(QWidget *parent)
    : CheckedLineEdit(parent)
{
    setCheck(headerFault);
}

void HeaderField::feed(Session &session)
{
    session.setHeaderText(text());
    connect(this, &QLineEdit::textChanged, &session, &Session::setHeaderText);
    connect(this, &QLineEdit::textEdited, &session.receivedHeader(), &ReceivedHeader::noteTyping);
}
