#include "app/styles.h"
#include "commands/commandtable.h"
#include "commands/commandview.h"
#include "figures.h"
#include "files/commandfile.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QVBoxLayout>

// What it takes to load a command file until its rows can be seen, and to scroll through them.

namespace {

constexpr int usualRows = 2000;
constexpr int manyRows = mostCommandRows;
constexpr int rubbishBytes = 8 * 1024 * 1024;

QByteArray fileOf(int rows)
{
    QByteArray file;
    for (int row = 0; row < rows; ++row) {
        file += QString("Register %1,select,03 %2 00 00 00 02\n")
                    .arg(row)
                    .arg(row, 4, 16, QLatin1Char('0'))
                    .toUtf8();
    }
    return file;
}

/// A command table of the size and with the style sheet that it has in the window.
class ShownTable
{
public:
    ShownTable()
        : m_table(new CommandView(&m_window))
        , m_commands(*m_table, &m_window)
    {
        m_window.setStyleSheet(windowStyle());
        auto *layout = new QVBoxLayout(&m_window);
        layout->addWidget(m_table);
        m_window.resize(1000, 420);
        m_window.show();
        QCoreApplication::processEvents();
    }

    /// Milliseconds from the file's bytes to painted rows.
    double load(const QByteArray &file)
    {
        QElapsedTimer timer;
        timer.start();
        m_commands.replaceRows(readCommandFile(file).rows);
        QCoreApplication::processEvents();
        return millisecondsSince(timer);
    }

    /// Milliseconds to paint each page of the table, from top to bottom.
    QVector<double> scroll()
    {
        QScrollBar &bar = *m_table->verticalScrollBar();
        bar.setValue(0);
        QVector<double> pages;
        while (bar.value() < bar.maximum()) {
            QElapsedTimer timer;
            timer.start();
            bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
            QCoreApplication::processEvents();
            pages.append(millisecondsSince(timer));
        }
        return pages;
    }

private:
    QDialog m_window;
    CommandView *m_table;
    CommandTable m_commands;
};

void measureUsualFile()
{
    ShownTable table;
    const QByteArray file = fileOf(usualRows);
    const double before = Usage::now().residentMiB;
    printHeading(QString("load: a command file of %1 rows").arg(usualRows));
    printFigure("to painted", table.load(file), "ms", "< 700");
    printFigure("memory a row", (Usage::now().residentMiB - before) * 1024 / usualRows, "KiB");
    printFigure("loaded again", table.load(file), "ms", "< 700");
    const QVector<double> pages = table.scroll();
    printFigure("a page scrolled, median", median(pages), "ms", "< 16");
    printFigure("a page scrolled, 99th percentile", percentile(pages, 0.99), "ms");
}

void measureManyRows()
{
    ShownTable usual;
    ShownTable many;
    const double usualMs = usual.load(fileOf(usualRows)) / usualRows;
    const double manyMs = many.load(fileOf(manyRows)) / manyRows;
    printHeading(QString("load: %1 rows").arg(manyRows));
    printFigure("to painted", manyMs * manyRows, "ms");
    printFigure("a row, against one of a fifth as many", manyMs / usualMs, "times", "1");
    const QVector<double> pages = many.scroll();
    printFigure("a page scrolled, median", median(pages), "ms", "< 16");
}

void measureRubbish()
{
    QByteArray rubbish(rubbishBytes, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : rubbish) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    QElapsedTimer timer;
    timer.start();
    const int rows = readCommandFile(rubbish).rows.size();
    printHeading("load: 8 MiB of rubbish");
    printFigure("parsed", millisecondsSince(timer), "ms", "< 2000");
    printFigure("rows found", rows, "");
}

void measureBlankLines()
{
    const QByteArray lines(rubbishBytes, '\n');
    QElapsedTimer timer;
    timer.start();
    const int rows = readCommandFile(lines).rows.size();
    printHeading("load: 8 MiB of blank lines");
    printFigure("parsed", millisecondsSince(timer), "ms", "< 1000");
    printFigure("rows found", rows, "");
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    measureUsualFile();
    measureManyRows();
    measureRubbish();
    measureBlankLines();
    return 0;
}
