#include "commands/cellwidgetdelegate.h"

#include <QWidget>

void CellWidgetDelegate::updateEditorGeometry(QWidget *widget, const QStyleOptionViewItem &option,
                                              const QModelIndex & /*index*/) const
{
    widget->setGeometry(option.rect);
}
