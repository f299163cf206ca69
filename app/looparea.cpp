#include "app/looparea.h"

#include "app/styles.h"
#include "ui_looparea.h"
#include "widgets/countvalidator.h"

#include <algorithm>

namespace {

constexpr int longestMs = 10000;
constexpr int mostPasses = 99999;
constexpr int leastButtonWidth = 104;

QString passText(qint64 pass, int passes)
{
    return passes == PassCount::endless ? LoopArea::tr("pass %1").arg(pass)
                                        : LoopArea::tr("%1 of %2").arg(pass).arg(passes);
}

} // namespace

LoopArea::LoopArea(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::LoopArea>())
{
    m_form->setupUi(this);
    prepareTimingFields();
    prepareRepeatField();
    reserveButtonWidth();
    showRunning(false);
}

LoopArea::~LoopArea() = default;

LoopTiming LoopArea::timing() const
{
    return {m_form->lineEdit_StepValue->text().toInt(), m_form->lineEdit_CycleTime->text().toInt(),
            repeat()};
}

void LoopArea::setRepeat(int passes)
{
    const bool isNumber = passes > 0 && passes <= mostPasses;
    m_form->lineEdit_Repeat->setText(isNumber ? QString::number(passes) : QString());
}

void LoopArea::showRunning(bool running)
{
    m_form->lineEdit_StepValue->setDisabled(running);
    m_form->lineEdit_CycleTime->setDisabled(running);
    m_form->lineEdit_Repeat->setDisabled(running);
    if (running) {
        showPass(0);
        m_form->repeatPlace->setCurrentWidget(m_form->label_Passes);
    } else {
        m_form->repeatPlace->setCurrentWidget(m_form->lineEdit_Repeat);
        m_form->label_Passes->clear();
    }
    if (running) {
        showBusy(*m_form->pushButton_Start_Loop, tr("Sending..."));
    } else {
        showIdle(*m_form->pushButton_Start_Loop, tr("Auto Send"));
    }
}

void LoopArea::showPass(qint64 pass)
{
    const QString text = passText(pass, repeat());
    m_form->label_Passes->setText(text);
    m_form->label_Passes->setToolTip(text);
}

void LoopArea::prepareRepeatField()
{
    m_form->lineEdit_Repeat->setValidator(new CountValidator(1, mostPasses, this));
    connect(m_form->lineEdit_Repeat, &QLineEdit::textChanged, this,
            [this] { emit repeatChanged(repeat()); });
}

int LoopArea::repeat() const
{
    return m_form->lineEdit_Repeat->text().toInt();
}

/// The button has room for both of its captions, so that it doesn't move what is beside it.
void LoopArea::reserveButtonWidth()
{
    QPushButton &button = *m_form->pushButton_Start_Loop;
    int width = leastButtonWidth;
    for (const bool running : {true, false}) {
        showRunning(running);
        button.ensurePolished();
        width = std::max(width, button.sizeHint().width());
    }
    button.setMinimumWidth(width);
}

void LoopArea::prepareTimingFields()
{
    auto *milliseconds = new CountValidator(longestMs, this);
    for (UnitLineEdit *edit : {m_form->lineEdit_StepValue, m_form->lineEdit_CycleTime}) {
        edit->setUnit(tr("ms"));
        edit->setValidator(milliseconds);
    }
}
