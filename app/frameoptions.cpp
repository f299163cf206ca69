#include "frameoptions.h"

#include "ui_dialog.h"

static QString headerFault(const QString &text)
{
    if (parseStartBytes(text)) {
        return {};
    }
    return QCoreApplication::translate(
        "FrameOptions",
        "No start bytes: write two, as in 0x5A,0xA5. Until then frames begin with A5 5A.");
}

FrameOptions::FrameOptions(const Ui::Dialog &form, const Settings &settings,
                           int maximumInstructionLength)
    : m_form(form)
    , m_settings(settings)
    , m_maximumInstructionLength(maximumInstructionLength)
{
    m_form.lineEdit_SBytes->setCheck(headerFault);
}

void FrameOptions::takeCrcFlag(LinkMode mode)
{
    const QCheckBox *box =
        mode == LinkMode::Uart ? m_form.checkBox_CRC_EN : m_form.checkBox_CRC_EN_2;
    m_crcFlag = box->isChecked() ? 1 : 0;
}

FrameLayout FrameOptions::nextFrameLayout()
{
    FrameLayout layout;
    layout.startBytes = startBytes();
    layout.withStartBytes = m_settings.noAppendHeader == 0;
    layout.withLength = m_settings.noAppendLength == 0;
    layout.withCrc = withCrc();
    layout.maximumInstructionLength = m_maximumInstructionLength;
    return layout;
}

StartBytes FrameOptions::startBytes() const
{
    // Both links share the header of the serial tab; the HID tab's own field is never read.
    return parseStartBytes(m_form.lineEdit_SBytes->text()).value_or(fallbackStartBytes);
}

std::optional<QString> FrameOptions::unreadableHeader() const
{
    const QString text = m_form.lineEdit_SBytes->text();
    return parseStartBytes(text) ? std::nullopt : std::optional<QString>(text);
}
