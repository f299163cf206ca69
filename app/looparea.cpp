#include "app/looparea.h"

#include "app/styles.h"
#include "ui_looparea.h"
#include "widgets/countvalidator.h"

namespace {

constexpr int longestMs = 10000;

} // namespace

LoopArea::LoopArea(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::LoopArea>())
{
    m_form->setupUi(this);
    prepareTimingFields();
    showRunning(false);
}

LoopArea::~LoopArea() = default;

LoopTiming LoopArea::timing() const
{
    return {m_form->lineEdit_StepValue->text().toInt(), m_form->lineEdit_CycleTime->text().toInt()};
}

void LoopArea::showRunning(bool running)
{
    m_form->lineEdit_StepValue->setDisabled(running);
    m_form->lineEdit_CycleTime->setDisabled(running);
    if (running) {
        showBusy(*m_form->pushButton_Start_Loop, tr("Sending..."));
    } else {
        showIdle(*m_form->pushButton_Start_Loop, tr("Auto Send"));
    }
}

void LoopArea::prepareTimingFields()
{
    auto *milliseconds = new CountValidator(longestMs, this);
    for (UnitLineEdit *edit : {m_form->lineEdit_StepValue, m_form->lineEdit_CycleTime}) {
        edit->setUnit(tr("ms"));
        edit->setValidator(milliseconds);
    }
}
