#pragma once

#include <QByteArray>

#include <ctime>

/// A time zone for as long as this lives, as POSIX writes it: "CET-1CEST,M3.5.0,M10.5.0/3".
class TimeZone
{
public:
    explicit TimeZone(const QByteArray &zone) { use(zone); }
    ~TimeZone() { use(m_before); }
    Q_DISABLE_COPY_MOVE(TimeZone)

private:
    static void use(const QByteArray &zone)
    {
        if (zone.isNull()) {
            qunsetenv("TZ");
        } else {
            qputenv("TZ", zone);
        }
        tzset();
    }

    QByteArray m_before = qgetenv("TZ");
};
