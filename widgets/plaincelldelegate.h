#pragma once

#include <QCache>
#include <QStaticText>
#include <QStyledItemDelegate>

/// Paints cells of a table in the look of styleTable() that hold nothing but one line of text.
///
/// What comes out is what the style sheet makes of such a cell, at a fraction of the cost: the
/// style works its rules out, and lays the text out, several times a cell. Texts that come again
/// are laid out once. Beyond that, a selected row is marked in its first cell, and a text with a
/// colour of its own keeps it when selected.
class PlainCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// What is wrong with a cell's text, as a sentence for the user: such a text is underlined.
    /// Empty where nothing is.
    virtual QString fault(const QModelIndex & /*index*/) const { return {}; }

    /// What a tip says about a cell besides. Empty where there is nothing to say.
    virtual QString remark(const QModelIndex & /*index*/) const { return {}; }

private:
    void paintText(QPainter &painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const;
    QStaticText laidOut(const QString &text, const QFont &font) const;

    /// Painting changes nothing else, and happens in one thread.
    mutable QCache<QString, QStaticText> m_texts{400};
    mutable QFont m_font;
};
