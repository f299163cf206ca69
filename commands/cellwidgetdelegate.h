#pragma once

#include <QStyledItemDelegate>

/// Gives a widget in a cell the whole cell. Asking the style for its place, as other delegates do,
/// takes long in a table of thousands of widgets, which asks for each of them with every layout.
class CellWidgetDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void updateEditorGeometry(QWidget *widget, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
};
