#include "app/headlines.h"

#include "app/liststate.h"
#include "log/messagelog.h"
#include "log/recordlog.h"
#include "ui_dialog.h"

#include <QDir>

Headlines::Headlines(Ui::Dialog &form, const ListState &list, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_list(list)
{
    connect(&m_list, &ListState::changed, this, &Headlines::showList);
}

void Headlines::follow(const MessageLog &log)
{
    // A label of a fixed size changes its text without a new layout of the whole window.
    showMessageCount(RecordLog::mostRecords);
    m_form.label_MessageCount->ensurePolished();
    m_form.label_MessageCount->setFixedSize(m_form.label_MessageCount->sizeHint());
    connect(&log, &MessageLog::countChanged, this, &Headlines::showMessageCount);
    showMessageCount(0);
}

void Headlines::showList()
{
    m_form.label_ListName->setText(m_list.title());
    m_form.label_ListName->setToolTip(QDir::toNativeSeparators(m_list.path()));
}

void Headlines::showMessageCount(int count)
{
    m_form.label_MessageCount->setText(tr("%1 of %2").arg(count).arg(RecordLog::mostRecords));
}
