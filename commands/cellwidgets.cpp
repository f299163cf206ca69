#include "commands/cellwidgets.h"

#include "commands/cellwidget.h"

#include <QCheckBox>
#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTableWidget>

namespace {

const char *const selectStyle =
    "QCheckBox::indicator {width :  18px ;height :  18px ;}"
    "QCheckBox::indicator:unchecked {image:url(:/Image/Checkbox_point_uncheck.png);}"
    "QCheckBox::indicator:unchecked:hover {image:url(:/Image/Checkbox_point_uncheck.png);}"
    "QCheckBox::indicator:checked{image:url(:/Image/Checkbox_point_check.png);}"
    "QCheckBox::indicator:checked:hover{image:url(:/Image/Checkbox_point_check.png);}"
    ".QCheckBox{margin-left:7px;}";

const char *const sendStyle =
    "background:transparent;Color:#00A2FF;font-family:Arial;font-size: 23px;font-weight: bold;";

bool isTabFocus(const QEvent &event)
{
    if (event.type() != QEvent::FocusIn) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

/// A button in a cell that takes its row along when the user goes to it.
class RowButton : public CellWidget<QPushButton>
{
public:
    RowButton(QTableWidget &table, const QModelIndex &cell)
        : CellWidget<QPushButton>(table, cell)
        , m_table(table)
    {}

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress || isTabFocus(*event)) {
            m_table.setCurrentCell(cell().row(), cell().column());
        }
        return CellWidget<QPushButton>::event(event);
    }

private:
    QTableWidget &m_table;
};

} // namespace

QCheckBox *setSelectCell(QTableWidget &table, int row, int column, bool checked, QObject *filter)
{
    auto *container = new CellWidget<QWidget>(table, table.model()->index(row, column));
    auto *layout = new QHBoxLayout(container);
    auto *box = new LateStyled<QCheckBox>(container);
    box->setStyleSheet(QLatin1String(selectStyle));
    box->setChecked(checked);
    layout->setMargin(0);
    layout->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    layout->addWidget(box);
    container->installEventFilter(filter);
    table.setCellWidget(row, column, container);
    return box;
}

QCheckBox *selectBox(const QTableWidget &table, int row, int column)
{
    const QWidget *container = table.cellWidget(row, column);
    QLayout *layout = container != nullptr ? container->layout() : nullptr;
    QLayoutItem *first = layout != nullptr ? layout->itemAt(0) : nullptr;
    return first != nullptr ? qobject_cast<QCheckBox *>(first->widget()) : nullptr;
}

bool isSelectCellChecked(const QTableWidget &table, int row, int column)
{
    const QCheckBox *box = selectBox(table, row, column);
    return box != nullptr && box->isChecked();
}

QPushButton *setSendCell(QTableWidget &table, int row, int column, const QIcon &icon)
{
    auto *button = new RowButton(table, table.model()->index(row, column));
    button->setFlat(true);
    button->setDefault(false);
    button->setAutoDefault(false);
    button->setIcon(icon);
    button->setStyleSheet(QLatin1String(sendStyle));
    table.setCellWidget(row, column, button);
    return button;
}
