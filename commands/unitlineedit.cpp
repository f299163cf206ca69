#include "commands/unitlineedit.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QPushButton>

namespace {

constexpr int rightMargin = 13;
const char *const unitStyle =
    "background:transparent;Color:#888888;font-family:Arial;font-size: 16px;font-weight: normal;"
    "border:none;";

} // namespace

UnitLineEdit::UnitLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , m_unit(new QPushButton(this))
    , m_layout(new QHBoxLayout)
{
    m_unit->setFlat(true);
    m_unit->setAutoDefault(false);
    m_unit->setStyleSheet(QLatin1String(unitStyle));
    m_unit->setFocusPolicy(Qt::NoFocus);
    m_unit->setCursor(Qt::ArrowCursor);
    m_layout->addStretch();
    m_layout->addWidget(m_unit);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(0, 0, rightMargin, 0);
    setLayout(m_layout);
}

QString UnitLineEdit::unit() const
{
    return m_unit->text();
}

void UnitLineEdit::setUnit(const QString &unit)
{
    if (unit.isEmpty() || unit == m_unit->text()) {
        return;
    }
    ensurePolished();
    m_unit->setText(unit);
    const int width = fontMetrics().horizontalAdvance(unit);
    m_unit->setFixedWidth(width);
    QMargins margins = m_layout->contentsMargins();
    margins.setRight(margins.right() + width);
    setTextMargins(margins);
}
