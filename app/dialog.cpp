#include "dialog.h"

#include "allzero.h"
#include "boxes.h"
#include "celltips.h"
#include "commandcolumns.h"
#include "datafolder.h"
#include "headernotice.h"
#include "lightlook.h"
#include "linktexts.h"
#include "logtexts.h"
#include "scrollablewindow.h"
#include "styles.h"
#include "ui_dialog.h"
#include "version.h"
#include "windowkeys.h"

#include <QCloseEvent>
#include <QMessageBox>

namespace {

constexpr int firstRefreshMs = 1000;
constexpr int commandStretch = 10;
constexpr int messageStretch = 8;
constexpr int tipColumn = LogColumn::Data;
static_assert(tipColumn == CommandColumn::Crc);
constexpr int refreshAfterEventMs = 500;

} // namespace

/// The images live in a static library, so nothing but this brings them in.
static void initImages()
{
    Q_INIT_RESOURCE(tarnwick);
}

static std::unique_ptr<Ui::Dialog> makeForm(QDialog *dialog)
{
    initImages();
    new LightLook(*dialog);
    auto form = std::make_unique<Ui::Dialog>();
    form->setupUi(dialog);
    makeScrollable(*dialog);
    // Before anything measures a text.
    dialog->setStyleSheet(windowStyle());
    return form;
}

Dialog::Dialog(QWidget *parent)
    : QDialog(parent)
    , m_form(makeForm(this))
    , m_memory(*this, *m_form->splitter, dataFile(QStringLiteral("window.ini")), this)
    , m_wheelGuard(*m_form->tabWidget)
    , m_settingsFile(dataFile(QStringLiteral("debuggerConfig.ini")))
    , m_settings(m_settingsFile.load())
    , m_headlines(*m_form, m_list, this)
    , m_status({m_form->label_Status, m_form->label_Status_2}, this)
    , m_headerField(*m_form->lineEdit_SBytes, m_format, m_receivedHeader)
    , m_links(FrameReassembler::capacity - FrameReassembler::longestFrame,
              dataFile(QStringLiteral("hidDeviceID.ini")), this)
    , m_serialPanel(*m_form, m_links.serial(), this)
    , m_hidPanel(*m_form, m_links.hid(), this)
    , m_commands(*m_form->tableWidget_Register, this, this)
    , m_menus(this, m_settings.isEditorFun != 0)
    , m_rowActions(*m_form->tableWidget_Register, m_commands, m_menus, this)
    , m_tableKeys(*m_form->tableWidget_Register, m_commands, m_rowActions, m_menus, this)
    , m_rowEditor(*m_form->tableWidget_Register, m_commands, this)
    , m_records(this)
    , m_log(*m_form->tableWidget_Message, m_records, this)
    , m_messageCopy(*m_form->tableWidget_Message, m_log, m_records, this)
    , m_devices(m_links.serial(), m_links.hid(), m_records, this)
    , m_linkStatus(m_status, m_devices, this)
    , m_files(this, dataFolder(), fileHooks())
    , m_recovery(dataFolder(), m_list, [this] { return m_commands.rows(); })
    , m_receiver([this] { return m_receivedHeader.startBytes(); }, this)
    , m_sender(m_format, this)
    , m_loop(m_sender, this)
    , m_loopPanel(*m_form, this)
{
    setUpWindow();
    m_headlines.follow(m_log);
    m_linkStatus.follow(m_serialPanel, m_links.serial());
    m_linkStatus.follow(m_hidPanel, m_links.hid());
    connectLinks();
    connectSending();
    setUpCommands();
    setUpTips();
    setUpTimers();
    watchDevices();
    m_files.setLastLoadFolder(m_settings.lastLoadPath);
    m_files.setLastSaveFolder(m_settings.lastSavePath);
    m_links.hid().readDeviceTypes();
    chooseLink(static_cast<LinkMode>(m_settings.linkMode));
    m_form->tabWidget->setCurrentIndex(m_settings.linkMode);
    offerLeftBehind();
}

Dialog::~Dialog()
{
    m_form->tableWidget_Register->clearContents();
}

void Dialog::closeEvent(QCloseEvent *event)
{
    m_loop.stop();
    m_commands.takeInEdit();
    if (m_list.isModified() && askToSaveCommands()) {
        m_files.saveCommands();
    }
    saveSettings();
    // While the question was asked, the program may have been told to end.
    if (!m_isEnding) {
        m_recovery.discard();
    }
    event->accept();
}

void Dialog::end()
{
    m_isEnding = true;
    m_loop.stop();
    keepForNextStart();
    m_links.close();
}

void Dialog::keepForNextStart()
{
    m_commands.takeInEdit();
    m_recovery.keep();
    saveSettings();
}

void Dialog::saveSettings()
{
    m_settings.linkMode = int(m_links.mode());
    m_settings.lastLoadPath = m_files.lastLoadFolder();
    m_settings.lastSavePath = m_files.lastSaveFolder();
    m_settingsFile.save(m_settings);
    m_memory.save();
}

void Dialog::wheelEvent(QWheelEvent * /*event*/)
{
    const QPoint position = mapFromGlobal(QCursor::pos());
    // The table's geometry is relative to its parent; comparing the two as they are is meant so.
    if (m_form->tableWidget_Register->geometry().contains(position)) {
        m_rowActions.appendRowAtEnd();
    }
}

bool Dialog::nativeEvent(const QByteArray & /*eventType*/, void *message, long *result)
{
    const bool taken = m_devices.takeMessage(message);
    if (taken && result != nullptr) {
        *result = 1;
    }
    return taken;
}

void Dialog::setUpWindow()
{
    setWindowTitle(QLatin1String(windowTitleText));
    setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    addWindowKeys(*m_form);
    m_form->splitter->setStretchFactor(0, commandStretch);
    m_form->splitter->setStretchFactor(1, messageStretch);
    m_memory.restore();
}

void Dialog::setUpCommands()
{
    QTableWidget *table = m_form->tableWidget_Register;
    connect(&m_menus.rowMenu(), &QMenu::triggered, this, &Dialog::SlotRegisterMenuClicked);
    connect(&m_menus.selectMenu(), &QMenu::triggered, this, &Dialog::SlotSelectMenuClicked);
    connect(&m_menus.cmdMenu(), &QMenu::triggered, this, &Dialog::SlotCmdMenuClicked);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QTableWidget::customContextMenuRequested, this,
            &Dialog::tableRegisterContexMenuRequested);
    connect(&m_rowActions, &RowActions::refused, this, &Dialog::showMessage);
    connect(&m_rowActions, &RowActions::modified, &m_list, &ListState::setModified);
    connect(&m_rowActions, &RowActions::editRequested, &m_rowEditor, &RowEditor::open);
    connect(&m_rowEditor.editor(), &DirectEditor::SendData, this, &Dialog::editor_dataIn);
    connect(&m_rowEditor.editor(), &DirectEditor::unencodableTyped, this, &Dialog::showMessage,
            Qt::QueuedConnection);
    connect(&m_commands, &CommandTable::sendRequested, this, &Dialog::SendOne);
    connect(&m_commands, &CommandTable::insertionRefused, &m_status, &StatusLine::tell);

    connect(&m_commands, &CommandTable::addressCommitted, this, &Dialog::on_DataEdited);
    connect(&m_commands, &CommandTable::enterPressed, this, &Dialog::on_DataEnter);
}

void Dialog::setUpTips()
{
    for (QTableWidget *table : std::initializer_list<QTableWidget *>{m_form->tableWidget_Register,
                                                                     m_form->tableWidget_Message}) {
        table->setMouseTracking(true);
        connect(table, &QTableWidget::entered, this, &Dialog::doMouseTrackTip);
        new CellTips(*table, tipColumn, this);
    }
}

FileActionHooks Dialog::fileHooks()
{
    FileActionHooks hooks;
    hooks.showMessage = [this](const QString &text) { showMessage(text); };
    hooks.commands = [this] { return m_commands.rows(); };
    hooks.replaceCommands = [this](const auto &rows) { m_commands.replaceRows(rows); };
    hooks.commandsStored = [this](const QString &path) {
        m_list.setStored(path);
        m_recovery.discard();
    };
    hooks.commandsRecovered = [this](const QString &path) { takeRecovered(path); };
    hooks.beforeOverwriting = [this] { m_recovery.write(); };
    hooks.tell = [this](const QString &text) { m_status.tell(text); };
    hooks.messages = [this] { return textsOf(m_records.records()); };
    return hooks;
}

/// Its file goes, so the list is in none.
void Dialog::takeRecovered(const QString &path)
{
    m_list.setNew();
    m_list.setModified();
    m_recovery.takeOver(path);
    m_status.withdrawOffer();
}

void Dialog::offerLeftBehind()
{
    const QString path = m_recovery.leftBehind();
    if (!path.isEmpty()) {
        m_status.offer(tr("A command list was not saved when the program ended."), tr("Load it..."),
                       [this, path] { m_files.loadCommandsAt(path); });
    }
}

void Dialog::setUpTimers()
{
    connect(&m_timer1, &QTimer::timeout, this, &Dialog::Timer1_Out_Event);
    m_timer1.start(firstRefreshMs);
}

void Dialog::connectLinks()
{
    SerialLink &serial = m_links.serial();
    HidLink &hid = m_links.hid();
    connect(&serial, &Link::arrived, &m_receiver, &Receiver::take);
    connect(&serial, &Link::lost, this, [this, &serial](const QString &reason) {
        const QString port = serial.openPortName();
        endLink(serial);
        m_timer1.start(refreshAfterEventMs);
        showMessage(whyLost(port, reason));
    });
    connect(&hid, &Link::arrived, &m_receiver, &Receiver::take);
    connect(&hid, &HidLink::dropped, &m_records, [this](qint64 bytes) {
        m_records.appendEvent(QStringLiteral("HID"), tr("%1 bytes dropped").arg(bytes));
    });
    connect(&hid, &Link::lost, this, &Dialog::Close_HidDevice_From_thread);
    connect(&m_receiver, &Receiver::frameReceived, this,
            [this](const QByteArray &frame, ArrivalTime time) {
                m_records.appendReceived(frame, m_format.withCrc(), time);
            });
    connect(&m_receiver, &Receiver::noticeReceived, this, &Dialog::logNotice);
    connect(&m_receivedHeader, &ReceivedHeader::unreadable, this,
            [this] { showMessage(badHeaderMessage); });
}

void Dialog::watchDevices()
{
    connect(&m_devices, &DeviceWatch::portGone, this, [this] { endLink(m_links.serial()); });
    connect(&m_devices, &DeviceWatch::hidGone, this, [this] { endLink(m_links.hid()); });
    connect(&m_devices, &DeviceWatch::listsOutdated, this,
            [this] { m_timer1.start(refreshAfterEventMs); });
    if (!m_devices.start([this] { return quintptr(winId()); })) {
        QTimer::singleShot(0, this, [this] {
            showMessage(QStringLiteral("The hardware monitoring registration failed, and the "
                                       "hardware could not be identified!"));
        });
    }
}

void Dialog::connectSending()
{
    connect(&m_sender, &Sender::message, this, &Dialog::showMessage);
    connect(&m_sender, &Sender::sent, this, [this](const QByteArray &frame, ArrivalTime time) {
        m_records.appendSent(frame, m_format.withCrc(), time);
    });
    connect(&m_loop, &LoopControl::notice, this, &Dialog::showMessage);
    connect(&m_loop, &LoopControl::started, this,
            [this] { m_loopPanel.showRunning(m_links.mode()); });
    connect(&m_loop, &LoopControl::stopped, &m_loopPanel, &LoopPanel::showStopped);
    connect(&m_loop, &LoopControl::foundNothing, &m_loopPanel, &LoopPanel::showNothingToSend);
    m_format.setStartBytes(m_settings.noAppendHeader == 0);
    m_format.setLength(m_settings.noAppendLength == 0);
    m_log.setHold([this] { return m_loop.isFrameNear(); });
}

void Dialog::on_tabWidget_currentChanged(int index)
{
    m_status.tell({});
    if (index == int(LinkMode::Uart) || index == int(LinkMode::Hid)) {
        chooseLink(static_cast<LinkMode>(index));
    }
}

void Dialog::on_pushButton_OpenCom_clicked()
{
    if (m_links.serial().isOpen()) {
        m_links.serial().close();
    } else {
        openSerialPort();
    }
}

void Dialog::on_comboBox_Comm_activated(int /*index*/)
{
    openSerialPort();
}

void Dialog::on_comboBox_Baudrate_activated(int index)
{
    m_serialPanel.prepareBaudRate(index);
}

void Dialog::serial_receiveData()
{
    m_links.serial().receive();
}

void Dialog::on_pushButton_ConnectHID_clicked()
{
    if (m_links.hid().isOpen()) {
        m_links.hid().close();
    } else if (!m_hidPanel.open()) {
        showOpenFail(QStringLiteral("HID"));
    }
}

void Dialog::hid_receiveData(HidPacket packet)
{
    m_links.hid().receive(packet);
}

void Dialog::Close_HidDevice_From_thread()
{
    endLink(m_links.hid());
}

void Dialog::SendOne()
{
    takeCrcFlag();
    m_sender.sendOne(m_commands.currentFrameText());
}

void Dialog::on_pushButton_SendAll_clicked()
{
    takeCrcFlag();
    m_sender.sendAll(m_commands.checkedRows());
}

void Dialog::on_pushButton_SendAll_2_clicked()
{
    on_pushButton_SendAll_clicked();
}

void Dialog::on_pushButton_Start_Loop_clicked()
{
    if (m_loop.isRunning()) {
        m_loop.stop();
        return;
    }
    takeCrcFlag();
    m_loop.start(m_commands.checkedRows(), m_loopPanel.timing());
}

void Dialog::Timer1_Out_Event()
{
    m_timer1.stop();
    m_serialPanel.refreshPorts(portsFolder());
    m_hidPanel.refreshDevices();
}

void Dialog::Timer2_Out_Event()
{
    m_loop.runPass();
}

void Dialog::on_pushButton_ClearMessage_clicked()
{
    m_records.clear();
}

void Dialog::on_pushButton_SaveMessage_clicked()
{
    m_files.saveMessages();
}

void Dialog::on_pushButton_LoadCommand_clicked()
{
    m_files.loadCommands();
}

void Dialog::on_pushButton_SaveCommand_clicked()
{
    m_commands.takeInEdit();
    m_files.saveCommands();
}

void Dialog::on_pushButton_ClearCommand_clicked()
{
    m_commands.clear();
    m_list.setNew();
}

void Dialog::tableRegisterContexMenuRequested(const QPoint &pos)
{
    if (QMenu *menu = m_rowActions.menuAt(pos)) {
        menu->exec(m_rowActions.menuPosition());
    }
}

void Dialog::SlotRegisterMenuClicked(QAction *act)
{
    m_rowActions.changeRow(act);
}

void Dialog::SlotSelectMenuClicked(QAction *act)
{
    m_rowActions.checkSelectedRows(act);
}

void Dialog::SlotCmdMenuClicked(QAction *act)
{
    m_rowActions.writeCmd(act);
}

void Dialog::on_tableWidget_Register_cellChanged(int /*row*/, int /*column*/)
{
    On_tableWidget_Register_textchange();
}

void Dialog::on_tableWidget_Register_cellClicked(int /*row*/, int /*column*/) {}

void Dialog::On_tableWidget_Register_textchange()
{
    m_list.setModified();
    m_commands.recomputeCurrentRow();
}

void Dialog::on_DataEdited()
{
    m_commands.normaliseCurrentAddress();
}

void Dialog::on_DataEnter()
{
    m_commands.goOnFromCurrentCell();
}

void Dialog::editor_dataIn()
{
    m_rowEditor.takeBack(m_rowActions.contextRow());
}

void Dialog::doMouseTrackTip(const QModelIndex &index)
{
    if (index.column() == tipColumn) {
        showCellText(index.data().toString());
    }
}

void Dialog::chooseLink(LinkMode mode)
{
    m_links.choose(mode);
    m_sender.setLink(&m_links.chosen());
}

/// The CRC box of the tab that is used counts for what is sent and logged from now on.
void Dialog::takeCrcFlag()
{
    const QCheckBox *box =
        m_links.mode() == LinkMode::Uart ? m_form->checkBox_CRC_EN : m_form->checkBox_CRC_EN_2;
    m_format.setCrc(box->isChecked());
}

void Dialog::showMessage(const QString &text)
{
    QMessageBox::information(this, tr("Message"), text, QMessageBox::Ok);
}

void Dialog::openSerialPort()
{
    if (!m_serialPanel.open()) {
        showOpenFail(QStringLiteral("UART"));
    }
}

void Dialog::endLink(Link &link)
{
    m_loop.stop();
    link.close();
}

void Dialog::logNotice(const QByteArray &bytes, ArrivalTime time)
{
    if (m_links.mode() == LinkMode::Hid && isAllZero(bytes)) {
        return;
    }
    m_records.appendStray(bytes, time);
}
