#pragma once

#include <QTableWidgetItem>

/// A cell of the message log: a text that can be selected but not edited, plain or in the colour of
/// what was received.
///
/// It answers for its look itself instead of storing it in each of thousands of cells; what is set
/// on it counts instead, as on any item.
class LogItem : public QTableWidgetItem
{
public:
    enum class Colour { Plain, Received };

    LogItem(QString text, Qt::Alignment alignment, Colour colour);

    QTableWidgetItem *clone() const override;
    QVariant data(int role) const override;
    void setData(int role, const QVariant &value) override;

private:
    QVariant ownData(int role) const;

    QString m_text;
    Qt::Alignment m_alignment;
    Colour m_colour;
};
