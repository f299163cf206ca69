#include "editordriver.h"

#include <QInputMethodEvent>
#include <QtTest>

namespace {

void chooseByKeyboard(QComboBox *list, const QString &item)
{
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = list->findText(item); i > 0; --i) {
        QTest::keyClick(list, Qt::Key_Down);
    }
    QCOMPARE(list->currentText(), item);
}

} // namespace

void EditorDriver::load(const QString &data, const QString &type)
{
    m_editor.editCmd = "01";
    m_editor.editAddr = "0A10";
    m_editor.editData = data;
    m_editor.editType = type;
    m_editor.loadFromMembers();
}

void EditorDriver::show()
{
    m_editor.show();
    m_editor.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_editor));
}

void EditorDriver::chooseType(const QString &item) const
{
    chooseByKeyboard(types(), item);
}

void EditorDriver::chooseEncoding(const QString &item) const
{
    chooseByKeyboard(encodings(), item);
}

void EditorDriver::type(const QString &text) const
{
    value()->setFocus();
    for (const QChar character : text) {
        if (character.unicode() < 0x80) {
            QTest::keyClick(value(), character.toLatin1());
        } else {
            QInputMethodEvent event;
            event.setCommitString(character);
            QCoreApplication::sendEvent(value(), &event);
        }
    }
}
