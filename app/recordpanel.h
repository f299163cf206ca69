#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class RecordPanel;
}
struct RecordingStatus;

/// The side panel's buttons "Record…" and "Export…", and the line below that tells how far a
/// recording is.
class RecordPanel : public QWidget
{
    Q_OBJECT

public:
    explicit RecordPanel(QWidget *parent = nullptr);
    ~RecordPanel() override;

    /// Shows whether a recording runs, how large it is, what it has dropped, and why it has stopped
    /// if something went wrong.
    void showStatus(const RecordingStatus &status, bool isRecording);

    /// Shows that an export is under way: another one can't be begun meanwhile.
    void setExporting(bool isExporting);

signals:
    void recordClicked();
    void exportClicked();

private:
    std::unique_ptr<Ui::RecordPanel> m_form;
};
