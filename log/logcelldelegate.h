#pragma once

#include "log/timecolumn.h"
#include "widgets/plaincelldelegate.h"

/// Paints the cells of the message log; what a received frame says, and its CRC,
/// may be a fault.
/// In the last column, whose cells have no text, it paints the time that they carry.
class LogCellDelegate : public PlainCellDelegate
{
    Q_OBJECT

public:
    /// Where a cell of the last column carries its RowTime.
    static constexpr int timeRole = Qt::UserRole;
    /// Where the first cell of a row carries what is said about all of the row.
    static constexpr int remarkRole = Qt::UserRole + 1;
    /// Where it carries why the frame is not what was expected.
    static constexpr int faultRole = Qt::UserRole + 2;

    using PlainCellDelegate::PlainCellDelegate;

    /// What is painted from now on.
    void setShownTime(ShownTime shown) { m_shownTime = shown; }
    ShownTime shownTime() const { return m_shownTime; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    QString fault(const QModelIndex &index) const override;

    QString remark(const QModelIndex &index) const override;

private:
    ShownTime m_shownTime = ShownTime::SinceRowBefore;
};
