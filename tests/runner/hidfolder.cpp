#include "hidfolder.h"

#include <QDir>

HidFolder::HidFolder()
{
    qputenv("TARNWICK_TEST_HID", m_folder.path(".").toLocal8Bit());
}

void HidFolder::plugIn(const QString &name, const PluggedHid &device) const
{
    const QStringList fields{device.ids, device.serialNumber, device.path,
                             device.refuses ? "refuses" : "opens"};
    // Whole at once: the program may be looking.
    const QString written = m_folder.file(fields.join('\t').toLocal8Bit(), name + ".new");
    QFile::rename(written, m_folder.path(name + ".device"));
}

void HidFolder::pullOut(const QString &name) const
{
    QFile::remove(m_folder.path(name + ".device"));
}

QVector<QByteArray> HidFolder::written(const QString &name) const
{
    QVector<QByteArray> reports;
    for (const QByteArray &line : m_folder.content(name + ".reports").split('\n')) {
        if (!line.isEmpty()) {
            reports.append(QByteArray::fromHex(line));
        }
    }
    return reports;
}
