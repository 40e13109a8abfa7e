#include "pages/ErrorsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

using WyWidgets::WyErrorWidget;

namespace {

constexpr int kFieldWidthPx = 320;
constexpr int kFieldGapPx = 6;
constexpr int kErrorMaxWidthPx = 300;
constexpr int kShortestPassword = 8;

QString nameProblem(const QString& text)
{
    return text.trimmed().isEmpty() ? ErrorsPage::tr("Please enter a name.") : QString();
}

QString mailProblem(const QString& text)
{
    static const QRegularExpression mail(QStringLiteral("^[^@\\s]+@[^@\\s]+\\.[^@\\s]+$"));
    return mail.match(text).hasMatch() ? QString() : ErrorsPage::tr("That is no e-mail address.");
}

QString passwordProblem(const QString& text)
{
    static const QRegularExpression digit(QStringLiteral("[0-9]"));
    if (text.size() >= kShortestPassword && text.contains(digit))
        return QString();
    return ErrorsPage::tr("The password needs at least eight characters, one of them a digit.");
}

} // namespace

ErrorsPage::ErrorsPage(QWidget* parent)
    : GalleryPage(
          tr("Errors"),
          tr("A message under the field that it is about. It fades in, is as wide as its text up to a "
             "maximum, wraps beyond that and hides itself after five seconds."),
          parent)
{
    addForm();
    addSettings();
}

void ErrorsPage::prepareForPicture()
{
    m_fields.at(1).edit->setText(QStringLiteral("ada@example"));
    m_fields.at(2).edit->setText(QStringLiteral("secret"));
    submit();
    m_error->ShowAnimation(true);
}

void ErrorsPage::addForm()
{
    auto* stage = new QWidget;
    auto* form = flushLayout<QVBoxLayout>(stage);
    form->setSpacing(6);
    addField(form, tr("Name"), nameProblem);
    addField(form, tr("E-mail"), mailProblem);
    addField(form, tr("Password"), passwordProblem)->setEchoMode(QLineEdit::Password);

    auto* button = new QPushButton(tr("Create the account"));
    button->setProperty("primary", true);
    connect(button, &QPushButton::clicked, this, &ErrorsPage::submit);
    m_result = new QLabel;
    m_result->setObjectName(QStringLiteral("gallery_readout"));
    form->addSpacing(8);
    form->addWidget(button, 0, Qt::AlignLeft);
    form->addWidget(m_result);
    form->addStretch();
    addExample(tr("A form with validation"), stage, nullptr, snippet(QStringLiteral("WyErrorWidget")));
}

QLineEdit* ErrorsPage::addField(QVBoxLayout* form, const QString& label,
                                std::function<QString(const QString&)> problem)
{
    auto* edit = new QLineEdit;
    edit->setFixedWidth(kFieldWidthPx);
    if (!m_fields.isEmpty())
        form->addSpacing(kFieldGapPx);
    auto* caption = new QLabel(label);
    caption->setBuddy(edit);
    auto* error = new WyErrorWidget;
    error->SetWidgetMaxWidth(kErrorMaxWidthPx);
    error->hide();
    form->addWidget(caption);
    form->addWidget(edit);
    form->addWidget(error, 0, Qt::AlignLeft);
    connect(edit, &QLineEdit::textEdited, error, &QWidget::hide);
    connect(edit, &QLineEdit::returnPressed, this, &ErrorsPage::submit);
    m_fields.append({edit, error, std::move(problem)});
    return edit;
}

void ErrorsPage::submit()
{
    QLineEdit* firstWrong = nullptr;
    for (const Field& field : qAsConst(m_fields)) {
        const QString problem = field.problem(field.edit->text());
        if (problem.isEmpty()) {
            field.error->hide();
            continue;
        }
        field.error->SetErrText(problem);
        field.error->ShowAnimation(true);
        if (!firstWrong)
            firstWrong = field.edit;
    }
    if (firstWrong)
        firstWrong->setFocus();
    m_result->setText(firstWrong ? QString() : tr("The account would now be created."));
}

void ErrorsPage::addSettings()
{
    const QString text = tr("The file could not be opened because another program uses it.");
    auto* stage = new QWidget;
    auto* layout = flushLayout<QVBoxLayout>(stage);
    m_error = new WyErrorWidget;
    m_error->SetWidgetMaxWidth(kErrorMaxWidthPx);
    m_error->SetErrText(text);
    layout->addWidget(m_error, 0, Qt::AlignLeft);
    layout->addStretch();

    auto* knobs = new KnobPanel;
    QLineEdit* edit =
        knobs->addText(tr("Text"), text, [this](const QString& words) { m_error->SetErrText(words); });
    knobs->addInt(tr("Maximum width"), 0, 600, kErrorMaxWidthPx, [this, edit](int width) {
        m_error->SetWidgetMaxWidth(width > 0 ? width : QWIDGETSIZE_MAX);
        m_error->SetErrText(edit->text());
    });
    knobs->addInt(tr("Fixed width"), 40, 600, kErrorMaxWidthPx,
                  [this](int width) { m_error->SetWidgetFixedWidth(width); });
    knobs->addCheck(tr("Wrap"), true, [this](bool wrap) { m_error->SetErrLabelWrap(wrap); });
    knobs->addCheck(tr("Animate and hide after 5 s"), m_animates,
                    [this](bool animates) { m_animates = animates; });
    knobs->addButton(tr("Show"), [this] { m_error->ShowAnimation(m_animates); });
    knobs->addButton(tr("Hide"), [this] { m_error->hide(); });
    addExample(tr("Width and wrapping"), stage, knobs, snippet(QStringLiteral("WyErrorWidget-more")));
}
