#include "links/serial/portsfolder.h"

#include "links/serial/naturalorder.h"

#include <QDir>

#include <algorithm>

QMap<QString, QString> linkedPorts(const QString &folder)
{
    QMap<QString, QString> ports;
    if (folder.isEmpty()) {
        return ports;
    }
    // Links to devices count as system files.
    const auto entries =
        QDir(folder).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        if (entry.isSymLink() && entry.exists()) {
            ports.insert(entry.absoluteFilePath(), entry.symLinkTarget());
        }
    }
    return ports;
}

QStringList linkedPortNames(const QString &folder)
{
    QStringList names = linkedPorts(folder).keys();
    std::sort(names.begin(), names.end(), naturallyBefore);
    return names;
}
