#include "app/looppanel.h"

#include "app/styles.h"
#include "session/session.h"
#include "ui_dialog.h"
#include "widgets/countvalidator.h"

namespace {

constexpr int longestMs = 10000;

void setEnabled(const QList<QWidget *> &widgets, bool enabled)
{
    for (QWidget *widget : widgets) {
        widget->setEnabled(enabled);
    }
}

} // namespace

LoopPanel::LoopPanel(Ui::Dialog &form, QObject *parent)
    : QObject(parent)
    , m_form(form)
{
    prepareTimingFields();
    showIdleButton();
}

void LoopPanel::follow(Session &session)
{
    const LoopControl &loop = session.loop();
    connect(&loop, &LoopControl::started, this,
            [this, &session] { showRunning(session.links().mode()); });
    connect(&loop, &LoopControl::stopped, this, &LoopPanel::showStopped);
    connect(&loop, &LoopControl::foundNothing, this, &LoopPanel::showNothingToSend);
}

void LoopPanel::showRunning(LinkMode mode)
{
    m_mode = mode;
    setEnabled(fileAndTimingWidgets() + linkWidgets(mode), false);
    m_form.tabWidget->setEnabled(false);
    showBusy(*m_form.pushButton_Start_Loop, tr("Sending..."));
}

void LoopPanel::showStopped()
{
    setEnabled(fileAndTimingWidgets() + linkWidgets(m_mode), true);
    m_form.tabWidget->setEnabled(true);
    m_form.checkBox_CRC_EN->setEnabled(true);
    showIdleButton();
}

void LoopPanel::showNothingToSend()
{
    setEnabled(fileAndTimingWidgets() + linkWidgets(LinkMode::Uart), true);
    showIdleButton();
}

LoopTiming LoopPanel::timing() const
{
    return {m_form.lineEdit_StepValue->text().toInt(), m_form.lineEdit_CycleTime->text().toInt()};
}

void LoopPanel::prepareTimingFields()
{
    auto *milliseconds = new CountValidator(longestMs, this);
    for (UnitLineEdit *edit : {m_form.lineEdit_StepValue, m_form.lineEdit_CycleTime}) {
        edit->setUnit(tr("ms"));
        edit->setValidator(milliseconds);
    }
}

QList<QWidget *> LoopPanel::fileAndTimingWidgets() const
{
    return {m_form.pushButton_LoadCommand, m_form.pushButton_ClearCommand,
            m_form.pushButton_SaveCommand, m_form.pushButton_SaveMessage,
            m_form.lineEdit_StepValue,     m_form.lineEdit_CycleTime};
}

QList<QWidget *> LoopPanel::linkWidgets(LinkMode mode) const
{
    if (mode == LinkMode::Hid) {
        return {m_form.pushButton_ConnectHID, m_form.checkBox_CRC_EN_2, m_form.pushButton_SendAll_2,
                m_form.lineEdit_SBytes_2};
    }
    return {m_form.pushButton_OpenCom, m_form.pushButton_SendAll, m_form.checkBox_CRC_EN,
            m_form.lineEdit_SBytes};
}

void LoopPanel::showIdleButton()
{
    showIdle(*m_form.pushButton_Start_Loop, tr("Auto Send"));
}
