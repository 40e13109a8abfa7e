#include "pages/EditsPage.h"

#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyClearEdit.h>
#include <WyWidgets/wycontrol/WyIntValidator.h>
#include <WyWidgets/wycontrol/WyPasswordEdit.h>
#include <WyWidgets/wycontrol/WyShortcutEdit.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

using WyWidgets::WyClearEdit;
using WyWidgets::WyIntValidator;
using WyWidgets::WyPasswordEdit;
using WyWidgets::WyShortcutEdit;

namespace {

constexpr int kEditWidthPx = 260;
constexpr int kBottom = 1;
constexpr int kTop = 12;

QString stateName(QValidator::State state)
{
    switch (state) {
    case QValidator::Invalid:
        return EditsPage::tr("refused");
    case QValidator::Intermediate:
        return EditsPage::tr("not finished");
    case QValidator::Acceptable:
        break;
    }
    return EditsPage::tr("accepted");
}

} // namespace

EditsPage::EditsPage(QWidget* parent)
    : GalleryPage(tr("Edits"),
                  tr("Line edits with a button inside, one that records a keyboard shortcut, and a validator "
                     "that lets nothing outside its range be typed."),
                  parent),
      m_clear(new WyClearEdit),
      m_password(new WyPasswordEdit),
      m_shortcut(new WyShortcutEdit),
      m_validator(new WyIntValidator(kBottom, kTop, this))
{
    addClearEdit();
    addPasswordEdit();
    addShortcutEdit();
    addValidator();
}

void EditsPage::prepareForPicture()
{
    m_clear->setText(tr("Ada Lovelace"));
    m_password->setText(QStringLiteral("correct horse"));
    m_shortcut->SetKeySequence(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
}

void EditsPage::addClearEdit()
{
    m_clear->setFixedWidth(kEditWidthPx);
    m_clear->setPlaceholderText(tr("Search"));
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Placeholder"), m_clear->placeholderText(),
                   [this](const QString& text) { m_clear->setPlaceholderText(text); });
    knobs->addCheck(tr("Enabled"), true, [this](bool on) { m_clear->setEnabled(on); });
    knobs->addButton(tr("Undo"), [this] { m_clear->undo(); });
    addExample(tr("WyClearEdit"), atOwnSize(m_clear), knobs, snippet(QStringLiteral("WyClearEdit")));
}

void EditsPage::addPasswordEdit()
{
    m_password->setFixedWidth(kEditWidthPx);
    m_password->setPlaceholderText(tr("Password"));
    auto* knobs = new KnobPanel;
    auto* passwordSwitch = m_password->findChild<QPushButton*>(QStringLiteral("edit_psw_switch"));
    QCheckBox* inClear =
        knobs->addCheck(tr("In clear"), false, [passwordSwitch](bool on) { passwordSwitch->setChecked(on); });
    connect(passwordSwitch, &QPushButton::toggled, inClear, &QCheckBox::setChecked);
    knobs->addCheck(tr("Enabled"), true, [this](bool on) { m_password->setEnabled(on); });
    addExample(tr("WyPasswordEdit"), atOwnSize(m_password), knobs, snippet(QStringLiteral("WyPasswordEdit")));
}

void EditsPage::addShortcutEdit()
{
    m_shortcut->setFixedWidth(kEditWidthPx);
    m_shortcut->setReadOnly(true);
    m_shortcut->setPlaceholderText(tr("Press a shortcut"));
    auto* knobs = new KnobPanel;
    QLabel* recorded = knobs->addReadout(tr("Recorded"), tr("nothing yet"));
    connect(
        m_shortcut, &QLineEdit::textChanged, recorded,
        [this, recorded] {
            recorded->setText(m_shortcut->portableText().isEmpty() ? tr("nothing yet")
                                                                   : m_shortcut->portableText());
        },
        Qt::QueuedConnection); // the text changes first
    knobs->addCheck(tr("Read-only"), true, [this](bool on) { m_shortcut->setReadOnly(on); });
    knobs->addButton(tr("Back to Ctrl+Shift+S"),
                     [this] { m_shortcut->SetKeySequence(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)); });
    knobs->addButton(tr("Forget it"), [this] { m_shortcut->SetKeySequence(QKeySequence()); });
    addExample(tr("WyShortcutEdit"), atOwnSize(m_shortcut), knobs, snippet(QStringLiteral("WyShortcutEdit")));
}

void EditsPage::addValidator()
{
    auto* edit = new QLineEdit;
    edit->setFixedWidth(kEditWidthPx);
    edit->setPlaceholderText(tr("Month, 1 to 12"));
    edit->setValidator(m_validator);
    auto* knobs = new KnobPanel;
    knobs->addInt(tr("Bottom"), -1000, 1000, kBottom, [this](int bottom) { m_validator->setBottom(bottom); });
    knobs->addInt(tr("Top"), -1000, 1000, kTop, [this](int top) { m_validator->setTop(top); });
    QLineEdit* tried = knobs->addText(tr("Try"), QString(), [](const QString&) {});
    QLabel* verdict = knobs->addReadout(tr("Verdict"), stateName(QValidator::Intermediate));
    connect(tried, &QLineEdit::textChanged, verdict, [this, verdict](QString text) {
        int cursor = text.size();
        const QString state = stateName(m_validator->validate(text, cursor));
        m_validator->fixup(text);
        verdict->setText(tr("%1; made \"%2\" by fixup()").arg(state, text));
    });
    addExample(tr("WyIntValidator"), atOwnSize(edit), knobs, snippet(QStringLiteral("WyIntValidator")));
}
