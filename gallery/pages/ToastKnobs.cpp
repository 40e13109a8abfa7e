#include "pages/ToastKnobs.h"

#include "FlushLayout.h"
#include "KnobPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QWheelEvent>

#include <array>

using WyWidgets::ToastButtonAlignment;
using WyWidgets::ToastIcon;
using WyWidgets::ToastPreset;
using WyWidgets::WyToast;

namespace {

constexpr int kLargestSizePx = 2000;
constexpr int kMarginLimitPx = 100;
constexpr int kOwnPictureSizePx = 64;
constexpr int kLibraryIcons = 5;

QString tr(const char* text)
{
    return QCoreApplication::translate("ToastKnobs", text);
}

/// A ring: a picture that is none of the library's. The toast gives it the icon colour.
QPixmap ownPicture()
{
    QPixmap picture(kOwnPictureSizePx, kOwnPictureSizePx);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, kOwnPictureSizePx / 6));
    painter.drawEllipse(QRectF(picture.rect()).adjusted(8, 8, -8, -8));
    return picture;
}

/// The wheel scrolls the page unless the box is in focus.
class MarginBox : public QSpinBox
{
public:
    MarginBox()
    {
        setRange(-kMarginLimitPx, kMarginLimitPx);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus())
            QSpinBox::wheelEvent(event);
        else
            event->ignore();
    }
};

struct MarginSide
{
    const char* name;
    int (QMargins::*value)() const;
};

constexpr std::array<MarginSide, 4> kSides = {
    {{QT_TRANSLATE_NOOP("ToastKnobs", "Left"), &QMargins::left},
     {QT_TRANSLATE_NOOP("ToastKnobs", "Top"), &QMargins::top},
     {QT_TRANSLATE_NOOP("ToastKnobs", "Right"), &QMargins::right},
     {QT_TRANSLATE_NOOP("ToastKnobs", "Bottom"), &QMargins::bottom}}};

struct MarginRow
{
    const char* name;
    QMargins (WyToast::*get)() const;
    void (WyToast::*set)(const QMargins&);
    std::array<void (WyToast::*)(int), kSides.size()> setSide;
};

const MarginRow kMarginRows[] = {
    {QT_TRANSLATE_NOOP("ToastKnobs", "Body"),
     &WyToast::getMargins,
     &WyToast::setMargins,
     {&WyToast::setMarginLeft, &WyToast::setMarginTop, &WyToast::setMarginRight, &WyToast::setMarginBottom}},
    {QT_TRANSLATE_NOOP("ToastKnobs", "Icon"),
     &WyToast::getIconMargins,
     &WyToast::setIconMargins,
     {&WyToast::setIconMarginLeft, &WyToast::setIconMarginTop, &WyToast::setIconMarginRight,
      &WyToast::setIconMarginBottom}},
    {QT_TRANSLATE_NOOP("ToastKnobs", "Icon and separator"),
     &WyToast::getIconSectionMargins,
     &WyToast::setIconSectionMargins,
     {&WyToast::setIconSectionMarginLeft, &WyToast::setIconSectionMarginTop,
      &WyToast::setIconSectionMarginRight, &WyToast::setIconSectionMarginBottom}},
    {QT_TRANSLATE_NOOP("ToastKnobs", "Title and text"),
     &WyToast::getTextSectionMargins,
     &WyToast::setTextSectionMargins,
     {&WyToast::setTextSectionMarginLeft, &WyToast::setTextSectionMarginTop,
      &WyToast::setTextSectionMarginRight, &WyToast::setTextSectionMarginBottom}},
    {QT_TRANSLATE_NOOP("ToastKnobs", "Close button"),
     &WyToast::getCloseButtonMargins,
     &WyToast::setCloseButtonMargins,
     {&WyToast::setCloseButtonMarginLeft, &WyToast::setCloseButtonMarginTop,
      &WyToast::setCloseButtonMarginRight, &WyToast::setCloseButtonMarginBottom}},
};

} // namespace

ToastKnobs::ToastKnobs(std::function<void()> changed) : m_changed(std::move(changed)) {}

void ToastKnobs::addInt(KnobPanel* panel, const QString& label, int minimum, int maximum,
                        int (Toast::*get)() const, void (Toast::*set)(int))
{
    copyBy(get, set);
    QSpinBox* spin = panel->addInt(label, minimum, maximum, (m_pattern.*get)(), [this, set](int value) {
        (m_pattern.*set)(value);
        m_changed();
    });
    m_refreshers += [this, spin, get] {
        const QSignalBlocker blocker(spin);
        spin->setValue((m_pattern.*get)());
    };
}

void ToastKnobs::addCheck(KnobPanel* panel, const QString& label, bool (Toast::*get)() const,
                          void (Toast::*set)(bool))
{
    copyBy(get, set);
    QCheckBox* box = panel->addCheck(label, (m_pattern.*get)(), [this, set](bool on) {
        (m_pattern.*set)(on);
        m_changed();
    });
    m_refreshers += [this, box, get] {
        const QSignalBlocker blocker(box);
        box->setChecked((m_pattern.*get)());
    };
}

void ToastKnobs::addColor(KnobPanel* panel, const QString& label, QColor (Toast::*get)() const,
                          void (Toast::*set)(const QColor&))
{
    copyBy(get, set);
    QPushButton* button = panel->addColor(label, (m_pattern.*get)(), [this, set](const QColor& color) {
        (m_pattern.*set)(color);
        m_changed();
    });
    m_refreshers += [this, button, get] {
        KnobPanel::showColor(button, (m_pattern.*get)());
    };
}

QLineEdit* ToastKnobs::addText(KnobPanel* panel, const QString& label, QString (Toast::*get)() const,
                               void (Toast::*set)(const QString&))
{
    copyBy(get, set);
    return panel->addText(label, (m_pattern.*get)(), [this, set](const QString& text) {
        (m_pattern.*set)(text);
        m_changed();
    });
}

void ToastKnobs::addSize(KnobPanel* panel, const QString& label, int maximum, QSize (Toast::*get)() const,
                         void (Toast::*set)(const QSize&))
{
    copyBy(get, set);
    addLength(panel, tr("%1 width").arg(label), maximum, get, set, &QSize::width, &QSize::setWidth);
    addLength(panel, tr("%1 height").arg(label), maximum, get, set, &QSize::height, &QSize::setHeight);
}

void ToastKnobs::addFont(KnobPanel* panel, const QString& label, QFont (Toast::*get)() const,
                         void (Toast::*set)(const QFont&))
{
    copyBy(get, set);
    const QStringList families = {QStringLiteral("Arial"), QStringLiteral("Courier New"),
                                  QStringLiteral("Times New Roman")};
    const auto change = [this, get, set](const std::function<void(QFont*)>& step) {
        QFont font = (m_pattern.*get)();
        step(&font);
        (m_pattern.*set)(font);
        m_changed();
    };
    panel->addChoice(tr("%1 font").arg(label), families, 0, [change, families](int index) {
        change([&](QFont* font) { font->setFamily(families.at(index)); });
    });
    const QFont font = (m_pattern.*get)();
    panel->addInt(tr("%1 size (pt)").arg(label), 5, 48, font.pointSize(), [change](int points) {
        change([points](QFont* changed) { changed->setPointSize(points); });
    });
    panel->addCheck(tr("%1 bold").arg(label), font.bold(),
                    [change](bool bold) { change([bold](QFont* changed) { changed->setBold(bold); }); });
}

void ToastKnobs::addAlignment(KnobPanel* panel, const QString& label)
{
    copyBy(&Toast::getCloseButtonAlignment, &Toast::setCloseButtonAlignment);
    panel->addChoice(label, {tr("Top"), tr("Middle"), tr("Bottom")},
                     static_cast<int>(m_pattern.getCloseButtonAlignment()), [this](int index) {
                         m_pattern.setCloseButtonAlignment(static_cast<ToastButtonAlignment>(index));
                         m_changed();
                     });
}

void ToastKnobs::addIcon(KnobPanel* panel, const QString& label, QPixmap (Toast::*get)() const,
                         void (Toast::*setIcon)(ToastIcon), void (Toast::*setPicture)(const QPixmap&))
{
    // The choice says more than the picture: a toast tells screen readers which icon it has.
    const auto apply = [setIcon, setPicture](Toast* toast, int choice) {
        if (choice < kLibraryIcons)
            (toast->*setIcon)(static_cast<ToastIcon>(choice));
        else
            (toast->*setPicture)(ownPicture());
    };
    QComboBox* choice = panel->addChoice(
        label, {tr("Success"), tr("Warning"), tr("Error"), tr("Information"), tr("Close"), tr("A picture")},
        0, [this, apply](int index) {
            apply(&m_pattern, index);
            m_changed();
        });
    m_copySteps += [choice, apply](Toast* toast) {
        apply(toast, choice->currentIndex());
    };
    m_refreshers += [this, choice, get] {
        const QSignalBlocker blocker(choice);
        const qint64 key = (m_pattern.*get)().cacheKey();
        for (int icon = 0; icon < kLibraryIcons; ++icon) {
            if (Toast::getIconFromEnum(static_cast<ToastIcon>(icon)).cacheKey() == key)
                choice->setCurrentIndex(icon);
        }
    };
    m_refreshers.last()();
}

void ToastKnobs::addBounds(KnobPanel* panel)
{
    m_copySteps += [this](Toast* toast) {
        toast->setMinimumSize(m_pattern.minimumSize());
        toast->setMaximumSize(m_pattern.maximumSize());
    };
    const auto add = [this, panel](const QString& label, const std::function<void(int)>& set) {
        QSpinBox* spin = panel->addInt(label, 0, kLargestSizePx, 0, [this, set](int value) {
            set(value);
            m_changed();
        });
        spin->setSpecialValueText(tr("free"));
        spin->setSingleStep(10);
    };
    const auto most = [](int value) {
        return value > 0 ? value : QWIDGETSIZE_MAX;
    };
    add(tr("Minimum width"), [this](int value) { m_pattern.setMinimumWidth(value); });
    add(tr("Minimum height"), [this](int value) { m_pattern.setMinimumHeight(value); });
    add(tr("Maximum width"), [this, most](int value) { m_pattern.setMaximumWidth(most(value)); });
    add(tr("Maximum height"), [this, most](int value) { m_pattern.setMaximumHeight(most(value)); });
    add(tr("Fixed width"), [this, most](int value) {
        m_pattern.setFixedWidth(value);
        m_pattern.setMaximumWidth(most(value));
    });
    add(tr("Fixed height"), [this, most](int value) {
        m_pattern.setFixedHeight(value);
        m_pattern.setMaximumHeight(most(value));
    });
}

QWidget* ToastKnobs::createMarginTable()
{
    auto* table = new QWidget;
    auto* grid = flushLayout<QGridLayout>(table);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    for (std::size_t side = 0; side < kSides.size(); ++side)
        grid->addWidget(new QLabel(tr(kSides[side].name)), 0, int(side) + 1);
    int line = 1;
    for (const MarginRow& row : kMarginRows) {
        copyBy(row.get, row.set);
        grid->addWidget(new QLabel(tr(row.name)), line, 0);
        for (std::size_t side = 0; side < kSides.size(); ++side) {
            QSpinBox* knob = createMarginKnob(row.get, kSides[side].value, row.setSide[side]);
            knob->setAccessibleName(tr("%1, %2").arg(tr(row.name), tr(kSides[side].name)));
            grid->addWidget(knob, line, int(side) + 1);
        }
        ++line;
    }
    grid->setColumnStretch(int(kSides.size()) + 1, 1);
    grid->setRowStretch(line, 1);
    return table;
}

void ToastKnobs::applyPreset(ToastPreset preset)
{
    m_pattern.applyPreset(preset);
    for (const auto& refresh : qAsConst(m_refreshers))
        refresh();
}

void ToastKnobs::copyTo(Toast* toast) const
{
    for (const auto& copy : m_copySteps)
        copy(toast);
}

template <typename Get, typename Set>
void ToastKnobs::copyBy(Get get, Set set)
{
    m_copySteps += [this, get, set](Toast* toast) {
        (toast->*set)((m_pattern.*get)());
    };
}

void ToastKnobs::addLength(KnobPanel* panel, const QString& label, int maximum, QSize (Toast::*get)() const,
                           void (Toast::*set)(const QSize&), int (QSize::*length)() const,
                           void (QSize::*setLength)(int))
{
    panel->addInt(label, 0, maximum, ((m_pattern.*get)().*length)(), [this, get, set, setLength](int value) {
        QSize size = (m_pattern.*get)();
        (size.*setLength)(value);
        (m_pattern.*set)(size);
        m_changed();
    });
}

QSpinBox* ToastKnobs::createMarginKnob(QMargins (Toast::*get)() const, int (QMargins::*side)() const,
                                       void (Toast::*setSide)(int))
{
    auto* knob = new MarginBox;
    knob->setValue(((m_pattern.*get)().*side)());
    QObject::connect(knob, QOverload<int>::of(&QSpinBox::valueChanged), knob, [this, setSide](int margin) {
        (m_pattern.*setSide)(margin);
        m_changed();
    });
    return knob;
}
