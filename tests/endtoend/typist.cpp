#include <QApplication>
#include <QGenericPlugin>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int lookMs = 10;

template<typename Widget>
Widget *find(const char *name)
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = window->findChild<Widget *>(QLatin1String(name))) {
            return found->isVisible() ? found : nullptr;
        }
    }
    return nullptr;
}

void say(const QString &text)
{
    std::printf("%s\n", text.toUtf8().constData());
    std::fflush(stdout);
}

/// Somebody in front of a window of a program that knows nothing of it: types a text into the first
/// cell of the command table, if there is one to type, and presses a button, if there is one to
/// press. What can be read on the loop's button and in the status line is printed first.
class Typist : public QTimer
{
public:
    Typist(QString text, QByteArray button)
        : m_text(std::move(text))
        , m_button(std::move(button))
    {
        connect(this, &QTimer::timeout, this, &Typist::work);
        start(lookMs);
    }

private:
    void work()
    {
        auto *table = find<QTableWidget>("tableWidget_Register");
        if (table == nullptr) {
            return;
        }
        stop();
        say("loop: " + find<QPushButton>("pushButton_Start_Loop")->text());
        say("status: " + find<QLabel>("label_Status")->text());
        if (!m_text.isEmpty()) {
            table->item(0, 0)->setText(m_text);
        }
        if (!m_button.isEmpty()) {
            QTimer::singleShot(lookMs, this, &Typist::sayWhenModal);
            find<QPushButton>(m_button.constData())->click();
        } else {
            say("done");
        }
    }

    void sayWhenModal()
    {
        if (QApplication::activeModalWidget() != nullptr) {
            say("done");
        } else {
            QTimer::singleShot(lookMs, this, &Typist::sayWhenModal);
        }
    }

    QString m_text;
    QByteArray m_button;
};

} // namespace

class TypistPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "typist.json")

public:
    /// What to press is given as "text" or "text|button".
    QObject *create(const QString & /*name*/, const QString &wanted) override
    {
        const QStringList parts = wanted.split('|');
        return new Typist(parts.value(0), parts.value(1).toLatin1());
    }
};

#include "typist.moc"
