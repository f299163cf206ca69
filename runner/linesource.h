#pragma once

#include <QByteArray>
#include <QObject>

#include <memory>

/// The lines of the standard input, as they come.
class LineSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether more is read. Lines that have been read still come.
    virtual void setReading(bool on) = 0;

signals:
    /// A line without its end. Emitted from the event loop.
    void arrived(const QByteArray &line);

    /// No more lines come.
    void ended();

protected:
    /// Tells the lines in what has been read; what follows the last line end is kept.
    void take(const QByteArray &bytes);
    /// Tells the line that nothing ends, and the end.
    void takeEnd();

private:
    QByteArray m_rest;
};

std::unique_ptr<LineSource> makeLineSource();
