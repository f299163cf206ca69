#include "privatesystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/netlink.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr unsigned udevGroup = 2;

bool writeWhole(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// As an ordinary user, or as root outside a chroot, everything happens in a user namespace.
bool enterUserNamespace()
{
    const QByteArray user = "0 " + QByteArray::number(getuid()) + " 1";
    const QByteArray group = "0 " + QByteArray::number(getgid()) + " 1";
    return unshare(CLONE_NEWUSER | CLONE_NEWNS | CLONE_NEWNET) == 0 &&
           writeWhole("/proc/self/setgroups", "deny") && writeWhole("/proc/self/uid_map", user) &&
           writeWhole("/proc/self/gid_map", group);
}

bool enterNamespaces()
{
    return enterUserNamespace() || unshare(CLONE_NEWNS | CLONE_NEWNET) == 0;
}

/// Keeps what is mounted over a folder from showing up outside.
bool makePrivate(const char *folder)
{
    return mount(nullptr, folder, nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool hide(const char *folder)
{
    return mount("none", folder, "tmpfs", 0, nullptr) == 0;
}

/// libudev listens only where it finds traces of a running udev.
bool pretendUdevRuns()
{
    return hide("/run") && mkdir("/run/udev", 0755) == 0 && writeWhole("/run/udev/control", "");
}

/// MurmurHash2, which filters of subsystems go by.
quint32 murmurHash(const QByteArray &text)
{
    constexpr quint32 factor = 0x5bd1e995;
    auto hash = quint32(text.size());
    int position = 0;
    for (; text.size() - position >= 4; position += 4) {
        auto word = qFromLittleEndian<quint32>(text.constData() + position) * factor;
        word ^= word >> 24U;
        hash = (hash * factor) ^ (word * factor);
    }
    for (int i = text.size() - 1; i >= position; --i) {
        hash ^= quint32(quint8(text.at(i))) << (8U * unsigned(i - position));
    }
    hash = position < text.size() ? hash * factor : hash;
    hash = (hash ^ (hash >> 13U)) * factor;
    return hash ^ (hash >> 15U);
}

QByteArray number(quint32 value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

QByteArray message(const QByteArray &action, const SystemDevice &device)
{
    constexpr quint32 magic = 0xfeedcafe;
    constexpr quint32 headerSize = 40;
    QList<QByteArray> lines{"ACTION=" + action, "DEVPATH=" + device.path,
                            "SUBSYSTEM=" + device.subsystem, "SEQNUM=1"};
    if (!device.node.isEmpty()) {
        lines.append("DEVNAME=/dev/" + device.node);
    }
    const QByteArray body = (lines + device.properties).join('\0') + '\0';
    return QByteArray("libudev\0", 8) + number(qToBigEndian(magic)) + number(headerSize) +
           number(headerSize) + number(quint32(body.size())) +
           number(qToBigEndian(murmurHash(device.subsystem))) + number(0) + number(0) + number(0) +
           body;
}

QByteArray failure(const char *what)
{
    return QByteArray(what).append(strerror(errno));
}

QString classLink(const SystemDevice &device)
{
    return "/sys/class/" + device.subsystem + '/' + QFileInfo(device.path).fileName();
}

} // namespace

QByteArray enterPrivateSystem()
{
    if (!enterNamespaces()) {
        return failure("no namespaces: ");
    }
    // In a chroot there may be no mount at the root; then only what is below /sys is ours.
    const bool allPrivate = makePrivate("/");
    if (!allPrivate && !makePrivate("/sys")) {
        return failure("no private mounts: ");
    }
    if (!hide("/sys") || (allPrivate && !pretendUdevRuns())) {
        return failure("no mounts: ");
    }
    // libudev takes only the real /sys at its word otherwise.
    qputenv("SYSTEMD_DEVICE_VERIFY_SYSFS", "0");
    return {};
}

bool plugIn(const SystemDevice &device, const QByteArray &type)
{
    const QString folder = "/sys" + device.path;
    const QString classFolder = "/sys/class/" + device.subsystem;
    const QByteArray name = device.node.isEmpty() ? QByteArray() : "DEVNAME=" + device.node + '\n';
    return QDir().mkpath(folder) && QDir().mkpath(classFolder) &&
           writeWhole(folder + "/uevent", name + device.properties.join('\n') + '\n') &&
           writeWhole(folder + "/type", type) && QFile::link(classFolder, folder + "/subsystem") &&
           QFile::link(folder, classLink(device));
}

void pullOut(const SystemDevice &device)
{
    QFile::remove(classLink(device));
    QDir("/sys" + device.path).removeRecursively();
}

bool announce(const QByteArray &action, const SystemDevice &device)
{
    const int sender = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_KOBJECT_UEVENT);
    sockaddr_nl group{};
    group.nl_family = AF_NETLINK;
    group.nl_groups = udevGroup;
    const QByteArray bytes = message(action, device);
    const auto sent = sendto(sender, bytes.constData(), size_t(bytes.size()), 0,
                             reinterpret_cast<const sockaddr *>(&group), sizeof group);
    close(sender);
    return sent == bytes.size();
}

bool announcementsWereLost()
{
    QFile sockets("/proc/self/net/netlink");
    if (!sockets.open(QIODevice::ReadOnly)) {
        return false;
    }
    const int protocolColumn = 1;
    const int dropsColumn = 8;
    const QList<QByteArray> lines = sockets.readAll().split('\n');
    return std::any_of(lines.begin(), lines.end(), [=](const QByteArray &line) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        return columns.value(protocolColumn).toInt() == NETLINK_KOBJECT_UEVENT &&
               columns.value(dropsColumn).toInt() > 0;
    });
}
