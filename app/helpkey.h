#pragma once

#include <QObject>

class QWidget;

/// Opens the guide in the user's browser when F1 is pressed anywhere in the window.
class HelpKey : public QObject
{
    Q_OBJECT

public:
    /// The guide is looked for from the folder of the program. The window must outlive this.
    HelpKey(QWidget &window, QString applicationFolder, QObject *parent = nullptr);

signals:
    /// There is no guide, or nothing that opens it: what the user must be told. Handlers may block.
    void notice(const QString &text);

private:
    void openGuide();

    QString m_applicationFolder;
};
