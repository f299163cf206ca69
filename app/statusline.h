#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QLabel;

/// What the user is told without being stopped, in labels that all say the same: what is open, the
/// last thing told, how the loop goes, and what is offered. Texts are plain.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    /// The labels must outlive this.
    explicit StatusLine(QList<QLabel *> labels, QObject *parent = nullptr);

    /// Shows the open link until the next call; nothing is open where the text is empty. With an
    /// open link, what was told before it goes, and how a loop went.
    void showLink(const QString &text);

    /// Shows the text in place of the one told before; an empty one clears it.
    void tell(const QString &text);

    /// Shows how the loop goes, or went, until the next call.
    void showLoop(const QString &text);

    /// Shows the text and, behind it, a link by which the user accepts. That ends the offer, as
    /// another one does.
    void offer(const QString &text, const QString &linkText);

    /// Ends an offer that the user has not accepted.
    void withdrawOffer();

signals:
    /// The user has accepted what was offered last.
    void accepted();

private:
    void show();
    QString plainText() const;
    QString htmlText() const;
    void accept();

    QList<QLabel *> m_labels;
    QString m_link;
    QString m_told;
    QString m_loop;
    QString m_offer;
    QString m_linkText;
};
