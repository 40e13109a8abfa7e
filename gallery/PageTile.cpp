#include "PageTile.h"

#include "Pages.h"
#include "Theme.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kIconSizePx = 20;
constexpr QSize kLeastSizePx(200, 84);

QLabel* createLabel(const QString& text, const char* objectName)
{
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(objectName));
    label->setWordWrap(true);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

} // namespace

PageTile::PageTile(const PageEntry& page, QWidget* parent)
    : QPushButton(parent), m_icon(createLabel(QString(), "gallery_tile_icon")), m_iconName(page.icon)
{
    const QString classes = page.classes.join(QStringLiteral(", "));
    setObjectName(QStringLiteral("gallery_tile"));
    setAccessibleName(page.name);
    setAccessibleDescription(classes);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setMinimumHeight(kLeastSizePx.height());

    auto* text = new QVBoxLayout;
    text->setSpacing(4);
    text->addWidget(createLabel(page.name, "gallery_tile_name"));
    text->addWidget(createLabel(classes, "gallery_tile_classes"));
    text->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 14, 16, 14);
    row->setSpacing(12);
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addLayout(text, 1);
    showIcon();
}

QSize PageTile::sizeHint() const
{
    return kLeastSizePx;
}

void PageTile::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        showIcon();
}

void PageTile::showIcon()
{
    m_icon->setPixmap(Theme::icon(m_iconName).pixmap(kIconSizePx));
}
