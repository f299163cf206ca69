#pragma once

#include "framesettings.h"
#include "looppanel.h"
#include "settings.h"

#include <QObject>

/// What the window's fields and the settings say about frames.
class FrameOptions : public QObject, public FrameSettings
{
    Q_OBJECT

public:
    /// Form and settings must outlive this.
    FrameOptions(const Ui::Dialog &form, const Settings &settings, int maximumInstructionLength,
                 QObject *parent = nullptr);

    /// Takes over the CRC box of a link's tab, for what is sent and logged from now on.
    void takeCrcFlag(LinkMode mode);

    /// The start bytes in the header field; a bad header is told and stands for the fallback.
    StartBytes readStartBytes();

    FrameLayout nextFrameLayout() override;
    StartBytes startBytes() const override;
    std::optional<QString> unreadableHeader() const override;
    bool withCrc() const override { return m_crcFlag != 0; }

signals:
    /// The header field can't be read; handlers may block.
    void badHeader(const QString &text);

private:
    const Ui::Dialog &m_form;
    const Settings &m_settings;
    int m_maximumInstructionLength;
    int m_crcFlag = 0;
};
