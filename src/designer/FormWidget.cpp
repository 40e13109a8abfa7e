#include "FormWidget.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int kIconSizePx = 22;
constexpr int kIconFontSizePx = 9;
constexpr QColor kIconColor(0x0B, 0x66, 0xC3);

/// A plate with letters; the control itself says little at this size.
QPixmap drawnIcon(const QString& letters, int scale)
{
    QPixmap pixmap(kIconSizePx * scale, kIconSizePx * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kIconColor);
    painter.drawRoundedRect(QRectF(0, 0, kIconSizePx, kIconSizePx), 4, 4);
    QFont font = painter.font();
    font.setPixelSize(kIconFontSizePx);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, kIconSizePx, kIconSizePx), Qt::AlignCenter, letters);
    return pixmap;
}

/// "WyFlatTab" gives "FlT": enough to tell a waiting bar from a window bar.
QString lettersOf(const QString& plainName)
{
    QString letters = plainName.mid(2, 2);
    for (const QChar letter : plainName.mid(4)) {
        if (letter.isUpper())
            return letters + letter;
    }
    return letters;
}

} // namespace

FormWidget::FormWidget(const Description& description, QObject* parent)
    : QObject(parent), m_description(description)
{
}

QString FormWidget::name() const
{
    return m_description.className;
}

QString FormWidget::group() const
{
    return QStringLiteral("WyWidgets");
}

QString FormWidget::toolTip() const
{
    return QString::fromUtf8(m_description.purpose);
}

QString FormWidget::whatsThis() const
{
    return toolTip();
}

QString FormWidget::includeFile() const
{
    return QStringLiteral("WyWidgets/%1.h").arg(plainName());
}

QIcon FormWidget::icon() const
{
    const QString letters = lettersOf(plainName());
    QIcon icon(drawnIcon(letters, 1));
    icon.addPixmap(drawnIcon(letters, 2));
    return icon;
}

bool FormWidget::isContainer() const
{
    return m_description.isContainer;
}

QString FormWidget::domXml() const
{
    // "WyFlatTab" is called "flatTab" on the form.
    const QString objectName = plainName().at(2).toLower() + plainName().mid(3);
    QString properties = QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%1</width>"
                                        "<height>%2</height></rect></property>")
                             .arg(m_description.size.width())
                             .arg(m_description.size.height());
    if (m_description.text) {
        properties += QStringLiteral("<property name=\"text\"><string>%1</string></property>")
                          .arg(QString::fromUtf8(m_description.text).toHtmlEscaped());
    }
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3</widget></ui>")
        .arg(name(), objectName, properties);
}

void FormWidget::initialize(QDesignerFormEditorInterface*)
{
    m_edits = true;
}

bool FormWidget::isInitialized() const
{
    return m_edits;
}

QWidget* FormWidget::createWidget(QWidget* parent)
{
    return m_edits && m_description.createForEditing ? m_description.createForEditing(parent)
                                                     : m_description.create(parent);
}

/// Without the namespace.
QString FormWidget::plainName() const
{
    return name().section(QStringLiteral("::"), -1);
}
