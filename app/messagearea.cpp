#include "app/messagearea.h"

#include "app/tabletips.h"
#include "log/messagelog.h"
#include "log/recordlog.h"
#include "ui_messagearea.h"
#include "widgets/leavingkeys.h"

MessageArea::MessageArea(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::MessageArea>())
{
    m_form->setupUi(this);
    addLeavingKeys(*m_form->tableWidget_Message);
    m_form->tableWidget_Message->setTabKeyNavigation(false);
    addTableTips(*m_form->tableWidget_Message);
}

MessageArea::~MessageArea() = default;

void MessageArea::follow(const MessageLog &log)
{
    // A label of a fixed size changes its text without a new layout of the whole window.
    showCount(RecordLog::mostRecords);
    m_form->label_MessageCount->ensurePolished();
    m_form->label_MessageCount->setFixedSize(m_form->label_MessageCount->sizeHint());
    connect(&log, &MessageLog::countChanged, this, &MessageArea::showCount);
    showCount(0);
}

LogTable &MessageArea::table() const
{
    return *m_form->tableWidget_Message;
}

void MessageArea::showCount(int count)
{
    m_form->label_MessageCount->setText(tr("%1 of %2").arg(count).arg(RecordLog::mostRecords));
}
