#pragma once

#include <QFileDialog>
#include <QObject>
#include <QStringList>

/// How a file dialog looked.
struct FileDialogLook
{
    QString caption;
    QString folder;
    QStringList filters;
    QWidget *parent = nullptr;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
};

/// Uses every file dialog that comes up: chooses a file, or closes it.
class FileDialogUser : public QObject
{
    Q_OBJECT

public:
    /// Chooses that file each time; closes the dialogs where there is no name.
    explicit FileDialogUser(QString path = {});
    ~FileDialogUser() override;

    /// Chooses that file from now on.
    void choose(const QString &path) { m_path = path; }

    /// How many dialogs have come up, and how the last one looked.
    int dialogCount() const { return m_dialogCount; }
    const FileDialogLook &look() const { return m_look; }

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// A dialog is up and not yet answered.
    void shown(QFileDialog *dialog);

private:
    void use(QFileDialog *dialog);

    QString m_path;
    int m_dialogCount = 0;
    FileDialogLook m_look;
};
