#include "pages/WindowsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"
#include "pages/DemoWindows.h"

#include "WyWidgets/frame/WyDialogBar.h"
#include "WyWidgets/frame/WyWindowBar.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>

namespace {

constexpr QColor kActiveShadow(0, 0, 0, 110);
constexpr QColor kInactiveShadow(0, 0, 0, 50);

enum Mask { NoMask, MaskWithMargin, MaskWithoutMargin };

QLabel* createPreview()
{
    auto* label = new QLabel;
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QPixmap pictureOf(WyWidgets::WyDialog* dialog, bool active)
{
    emit dialog->SignalWindowActive(active);
    return dialog->grab();
}

} // namespace

WindowsPage::WindowsPage(QWidget* parent)
    : GalleryPage(
          tr("Windows"),
          tr("Main windows and dialogs without the native frame. Their bars are ordinary widgets: put "
             "into them what you like, and let the style sheet paint them."),
          parent),
      m_window(new DemoWindow(this)),
      m_dialog(new DemoDialog(this)),
      m_windowPreview(createPreview()),
      m_activePreview(createPreview()),
      m_inactivePreview(createPreview())
{
    addMainWindow();
    addDialog();
    updatePreviews();
}

void WindowsPage::prepareForPicture()
{
    openDialog();
}

void WindowsPage::endPicture()
{
    m_dialog->close();
}

void WindowsPage::changeEvent(QEvent* event)
{
    GalleryPage::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        updatePreviews();
}

void WindowsPage::addMainWindow()
{
    auto* knobs = new KnobPanel;
    const QString title = tr("Untitled document");
    m_window->setTitle(title);
    knobs->addText(tr("Title"), title, [this](const QString& text) {
        m_window->setTitle(text);
        updatePreviews();
    });
    const QPair<QString, QString> buttons[] = {{tr("Minimise button"), QStringLiteral("min_button")},
                                               {tr("Maximise button"), QStringLiteral("max_button")},
                                               {tr("Close button"), QStringLiteral("close_button")}};
    for (const auto& button : buttons) {
        knobs->addCheck(button.first, true, [this, name = button.second](bool on) {
            m_window->bar()->SetChildVisible(name, on);
            updatePreviews();
        });
    }
    knobs->addButton(tr("Open the window"), [this] { openWindow(); });
    addExample(tr("WyMainWindow with a WyWindowBar"), m_windowPreview, knobs,
               snippet(QStringLiteral("WyMainWindow")));
}

void WindowsPage::addDialog()
{
    auto* previews = new QWidget;
    auto* row = flushLayout<QHBoxLayout>(previews);
    row->addWidget(captioned(m_activePreview, tr("Active")), 0, Qt::AlignTop);
    row->addWidget(captioned(m_inactivePreview, tr("Inactive")), 0, Qt::AlignTop);

    auto* knobs = new KnobPanel;
    const QString title = tr("Unsaved changes");
    m_dialog->GetTitleBar()->SetTitle(title, true);
    knobs->addText(tr("Title"), title, [this](const QString& text) {
        m_dialog->GetTitleBar()->SetTitle(text, true);
        updatePreviews();
    });
    m_dialog->setShadowActiveColor(kActiveShadow);
    m_dialog->setShadowDeactiveColor(kInactiveShadow);
    knobs->addColor(tr("Active shadow"), kActiveShadow, [this](const QColor& color) {
        m_dialog->setShadowActiveColor(color);
        updatePreviews();
    });
    knobs->addColor(tr("Inactive shadow"), kInactiveShadow, [this](const QColor& color) {
        m_dialog->setShadowDeactiveColor(color);
        updatePreviews();
    });
    knobs->addChoice(tr("Mask"), {tr("None"), tr("Inset"), tr("Whole")}, m_mask,
                     [this](int index) { m_mask = index; });
    knobs->addButton(tr("Open the dialog"), [this] { openDialog(); });
    connect(m_dialog, &QDialog::finished, m_dialog, &WyWidgets::WyDialog::SlotHideMask);
    addExample(tr("WyDialog with a title bar, a shadow and a mask"), previews, knobs,
               snippet(QStringLiteral("WyDialog")));
}

void WindowsPage::openWindow()
{
    if (!m_window->isVisible()) {
        const QPoint corner = window()->geometry().bottomRight();
        m_window->move(corner - QPoint(m_window->width() * 3 / 4, m_window->height() * 3 / 4));
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void WindowsPage::openDialog()
{
    m_dialog->SlotHideMask();
    if (m_mask != NoMask)
        m_dialog->ShowMask(window(), m_mask == MaskWithMargin);
    m_dialog->open();
}

void WindowsPage::updatePreviews()
{
    // One drawing for a burst of changes, when the style sheet has reached every widget.
    if (m_previewsAreStale)
        return;
    m_previewsAreStale = true;
    QMetaObject::invokeMethod(this, &WindowsPage::drawPreviews, Qt::QueuedConnection);
}

void WindowsPage::drawPreviews()
{
    m_previewsAreStale = false;
    m_windowPreview->setPixmap(m_window->grab());
    m_inactivePreview->setPixmap(pictureOf(m_dialog, false));
    m_activePreview->setPixmap(pictureOf(m_dialog, true));
    if (m_dialog->isVisible() && !m_dialog->isActiveWindow())
        emit m_dialog->SignalWindowActive(false);
}
