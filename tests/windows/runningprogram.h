#pragma once

#include <QProcess>

#include <windows.h>

/// The program in a process of its own, with its window.
class RunningProgram
{
public:
    RunningProgram() = default;
    RunningProgram(const RunningProgram &) = delete;
    RunningProgram &operator=(const RunningProgram &) = delete;
    /// Ends it, whatever it is doing.
    ~RunningProgram();

    /// Starts it and waits for its window.
    void start(const QString &path);
    /// Closes its window and waits for its end, which has to be a good one.
    void close();

    HWND window() const { return m_window; }

private:
    QProcess m_process;
    HWND m_window = nullptr;
};
