#include "app/statusline.h"

#include "widgets/wrappinglabel.h"

#include <QStringList>

#include <utility>

namespace {

/// Characters that fit into a line of the side panel.
constexpr int lineLength = 30;

QString toHtml(const QString &text)
{
    return withLineBreaks(text, lineLength)
        .toHtmlEscaped()
        .replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

} // namespace

StatusLine::StatusLine(QList<QLabel *> labels, QObject *parent)
    : QObject(parent)
    , m_labels(std::move(labels))
{
    for (const QLabel *label : std::as_const(m_labels)) {
        connect(label, &QLabel::linkActivated, this, &StatusLine::accept, Qt::QueuedConnection);
    }
    show();
}

void StatusLine::showLink(const QString &text)
{
    m_link = text;
    if (!text.isEmpty()) {
        m_told.clear();
        m_loop.clear();
    }
    show();
}

void StatusLine::tell(const QString &text)
{
    m_told = text;
    show();
}

void StatusLine::showLoop(const QString &text)
{
    m_loop = text;
    show();
}

void StatusLine::offer(const QString &text, const QString &linkText)
{
    m_offer = text;
    m_linkText = linkText;
    show();
}

void StatusLine::withdrawOffer()
{
    offer({}, {});
}

void StatusLine::show()
{
    const bool hasLink = !m_linkText.isEmpty();
    for (QLabel *label : std::as_const(m_labels)) {
        label->setTextFormat(hasLink ? Qt::RichText : Qt::PlainText);
        label->setText(hasLink ? htmlText() : plainText());
        // A label without a link is no stop of the Tab key.
        label->setTextInteractionFlags(hasLink ? Qt::TextBrowserInteraction
                                               : Qt::TextSelectableByMouse);
    }
}

QString StatusLine::plainText() const
{
    QStringList lines{m_link, m_told, m_loop};
    lines.removeAll(QString());
    return withLineBreaks(lines.join(QLatin1String("\n\n")), lineLength);
}

QString StatusLine::htmlText() const
{
    QStringList lines{toHtml(m_link), toHtml(m_told), toHtml(m_loop),
                      toHtml(m_offer) +
                          QStringLiteral(" <a href=\"#\">%1</a>").arg(toHtml(m_linkText))};
    lines.removeAll(QString());
    return lines.join(QLatin1String("<br><br>"));
}

/// Runs when the label is done with the click, since the link is taken away.
void StatusLine::accept()
{
    if (!m_linkText.isEmpty()) {
        withdrawOffer();
        emit accepted();
    }
}
