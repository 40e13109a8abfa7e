#include "KnobPanel.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>

namespace {

constexpr int kPanelWidthPx = 300;
constexpr int kSwatchSizePx = 16;
constexpr QSize kSwatchIconSizePx(24, 16);

constexpr ushort kLeftToRightMark = 0x200E;

/// The colour on a chequered ground, so that its transparency shows, with a gap before the text.
QIcon swatch(const QWidget* widget, const QColor& color)
{
    const qreal scale = widget->devicePixelRatioF();
    QPixmap pixmap(kSwatchIconSizePx * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::gray, 1));
    for (const QBrush& brush : {QBrush(Qt::white), QBrush(Qt::lightGray, Qt::Dense4Pattern), QBrush(color)}) {
        painter.setBrush(brush);
        painter.drawRoundedRect(QRectF(0.5, 0.5, kSwatchSizePx - 1, kSwatchSizePx - 1), 4, 4);
    }
    return pixmap;
}

} // namespace

KnobPanel::KnobPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("gallery_knobs"));
    setFixedWidth(kPanelWidthPx);
    m_form = new QFormLayout(this);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_form->setContentsMargins(18, 18, 18, 18);
    m_form->setHorizontalSpacing(14);
    m_form->setVerticalSpacing(10);
}

QCheckBox* KnobPanel::addCheck(const QString& label, bool value, std::function<void(bool)> apply)
{
    auto* box = new QCheckBox(label);
    box->setChecked(value);
    connect(box, &QCheckBox::toggled, this, apply);
    m_form->addRow(box);
    return box;
}

QComboBox* KnobPanel::addChoice(const QString& label, const QStringList& choices, int index,
                                std::function<void(int)> apply)
{
    auto* combo = new QComboBox;
    combo->addItems(choices);
    combo->setCurrentIndex(index);
    connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, apply);
    addRow(label, combo);
    return combo;
}

QPushButton* KnobPanel::addColor(const QString& label, const QColor& value, std::function<void(QColor)> apply)
{
    auto* button = new QPushButton;
    button->setIconSize(kSwatchIconSizePx);
    showColor(button, value);
    connect(button, &QPushButton::clicked, this, [this, button, label, apply] {
        const QColor current(button->text().mid(1));
        const QColor chosen = QColorDialog::getColor(current, this, label, QColorDialog::ShowAlphaChannel);
        if (!chosen.isValid())
            return;
        showColor(button, chosen);
        apply(chosen);
    });
    m_form->addRow(label, button);
    return button;
}

void KnobPanel::showColor(QPushButton* knob, const QColor& color)
{
    knob->setIcon(swatch(knob, color));
    // The mark keeps the number sign in front from right to left, too.
    knob->setText(QChar(kLeftToRightMark) + color.name(QColor::HexArgb));
}

QSpinBox* KnobPanel::addInt(const QString& label, int minimum, int maximum, int value,
                            std::function<void(int)> apply)
{
    auto* spin = new QSpinBox;
    spin->setRange(minimum, maximum);
    spin->setValue(value);
    connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, apply);
    addRow(label, spin);
    return spin;
}

QDoubleSpinBox* KnobPanel::addReal(const QString& label, double minimum, double maximum, double value,
                                   std::function<void(double)> apply)
{
    auto* spin = new QDoubleSpinBox;
    spin->setRange(minimum, maximum);
    spin->setSingleStep((maximum - minimum) / 50);
    spin->setValue(value);
    connect(spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, apply);
    addRow(label, spin);
    return spin;
}

QLineEdit* KnobPanel::addText(const QString& label, const QString& value, std::function<void(QString)> apply)
{
    auto* edit = new QLineEdit(value);
    edit->setCursorPosition(0);
    connect(edit, &QLineEdit::textChanged, this, apply);
    m_form->addRow(label, edit);
    return edit;
}

QPushButton* KnobPanel::addButton(const QString& text, std::function<void()> act)
{
    auto* button = new QPushButton(text);
    button->setProperty("primary", !findChild<QPushButton*>(QStringLiteral("gallery_action")));
    button->setObjectName(QStringLiteral("gallery_action"));
    connect(button, &QPushButton::clicked, this, act);
    m_form->addRow(button);
    return button;
}

QLabel* KnobPanel::addReadout(const QString& label, const QString& text)
{
    auto* readout = new QLabel(text);
    readout->setObjectName(QStringLiteral("gallery_readout"));
    readout->setWordWrap(true);
    m_form->addRow(label, readout);
    return readout;
}

/// The wheel scrolls the page; only a control in focus takes it.
bool KnobPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return QFrame::eventFilter(watched, event);
    event->ignore();
    return true;
}

void KnobPanel::addRow(const QString& label, QWidget* control)
{
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
    m_form->addRow(label, control);
}
