#include "app/messagearea.h"

#include "app/tabletips.h"
#include "log/messagelog.h"
#include "log/recordlog.h"
#include "ui_messagearea.h"
#include "widgets/leavingkeys.h"

#include <QAction>
#include <QShortcut>

namespace {

/// A label of a fixed size changes its text without a new layout of the whole window.
void keepRoomFor(QLabel &label, const QString &longest)
{
    label.setText(longest);
    label.ensurePolished();
    label.setFixedSize(label.sizeHint());
    label.setText({});
}

} // namespace

MessageArea::MessageArea(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::MessageArea>())
    , m_closingKey(new QShortcut(Qt::Key_Escape, this))
{
    m_form->setupUi(this);
    addLeavingKeys(*m_form->tableWidget_Message);
    m_form->tableWidget_Message->setTabKeyNavigation(false);
    addTableTips(*m_form->tableWidget_Message);
    m_form->label_Held->hide();
    setUpFind();
}

MessageArea::~MessageArea() = default;

void MessageArea::follow(MessageLog &log)
{
    m_log = &log;
    keepRoomFor(*m_form->label_MessageCount, fillText(RecordLog::mostRecords));
    keepRoomFor(*m_form->label_FindCount, findText(RecordLog::mostRecords, RecordLog::mostRecords));
    connect(&log, &MessageLog::countChanged, this, &MessageArea::showCounts);
    connect(&log, &MessageLog::followingChanged, m_form->label_Held, &QLabel::setHidden);
    showCounts();
}

LogTable &MessageArea::table() const
{
    return *m_form->tableWidget_Message;
}

void MessageArea::openFind()
{
    m_form->lineEdit_Find->show();
    m_form->label_FindCount->show();
    m_form->lineEdit_Find->setFocus(Qt::ShortcutFocusReason);
    m_form->lineEdit_Find->selectAll();
    m_closingKey->setEnabled(true);
}

void MessageArea::setUpFind()
{
    QLineEdit &field = *m_form->lineEdit_Find;
    m_closingKey->setContext(Qt::WidgetWithChildrenShortcut);
    connect(m_closingKey, &QShortcut::activated, this, &MessageArea::closeFind);
    const auto *openingKey = new QShortcut(QKeySequence::Find, this);
    connect(openingKey, &QShortcut::activated, this, &MessageArea::openFind);
    connect(&field, &QLineEdit::textChanged, this, &MessageArea::find);
    connect(&field, &QLineEdit::returnPressed, this, &MessageArea::goToFound);
    const QAction *end = field.addAction(style()->standardIcon(QStyle::SP_LineEditClearButton),
                                         QLineEdit::TrailingPosition);
    connect(end, &QAction::triggered, this, &MessageArea::closeFind);
    closeFind();
}

void MessageArea::find(const QString &typed)
{
    m_log->setFilter(LogFilter(typed));
    showCounts();
}

void MessageArea::closeFind()
{
    if (m_form->lineEdit_Find->hasFocus()) {
        table().setFocus(Qt::ShortcutFocusReason);
    }
    m_form->lineEdit_Find->clear();
    m_form->lineEdit_Find->hide();
    m_form->label_FindCount->hide();
    m_closingKey->setEnabled(false);
}

void MessageArea::goToFound()
{
    table().setFocus(Qt::ShortcutFocusReason);
    table().selectInView();
}

void MessageArea::showCounts()
{
    const int count = m_log->count();
    m_form->label_MessageCount->setText(fillText(count));
    m_form->label_FindCount->setText(m_log->isFiltered() ? findText(m_log->matching(), count)
                                                         : QString());
}

QString MessageArea::fillText(int count)
{
    return tr("%1 of %2").arg(count).arg(RecordLog::mostRecords);
}

QString MessageArea::findText(int matching, int count)
{
    return count == 1 ? tr("%1 of 1 row").arg(matching)
                      : tr("%1 of %2 rows").arg(matching).arg(count);
}
