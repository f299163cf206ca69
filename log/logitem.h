#pragma once

#include <QTableWidgetItem>

/// A cell of the message log: a text that can be selected but not edited, sent or received.
///
/// It answers for its look itself instead of storing it in each of thousands of cells.
class LogItem : public QTableWidgetItem
{
public:
    enum class Origin { Sent, Received };

    LogItem(QString text, Qt::Alignment alignment, Origin origin);

    QTableWidgetItem *clone() const override;
    QVariant data(int role) const override;

private:
    QString m_text;
    Qt::Alignment m_alignment;
    Origin m_origin;
};
