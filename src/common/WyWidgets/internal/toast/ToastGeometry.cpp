#include "WyWidgets/internal/toast/ToastGeometry.h"

#include "WyWidgets/internal/arithmetic/Pixels.h"
#include "WyWidgets/internal/toast/ToastText.h"
#include "WyWidgets/wycontrol/WyToast.h"

namespace WyWidgets {

namespace {

/// Halves are whole pixels, rounded toward zero.
Px half(Px value)
{
    return value / 2;
}

struct Extent
{
    Px width = 0;
    Px height = 0;
};

class LayoutPass
{
public:
    LayoutPass(const ToastMeasures& measures, const ToastText& title, const ToastText& text);
    ToastGeometry run();

private:
    void wrapToMaximumWidth();
    void wrapToMinimumHeight();
    void takeWrapped(int width);
    int widestTallWidth(int narrowest, int widest) const;
    bool isTallEnough(Px titleHeight, Px textHeight) const;
    void bound();
    void placeTexts(ToastGeometry& geometry) const;
    void placeIcon(ToastGeometry& geometry) const;
    void placeCloseButton(ToastGeometry& geometry) const;

    Px textSectionHeight(Px titleHeight, Px textHeight) const;
    Px widthAround(Px texts) const;
    Px heightAround(Px texts) const;
    Px tallestSection() const;

    const ToastMeasures& m;
    const ToastText& m_titleText;
    const ToastText& m_textText;
    Extent m_title;
    Extent m_text;
    Px m_spacing = 0;
    Extent m_iconSection;
    Extent m_closeSection;
    Extent m_body;
    Px m_centreOffset = 0;
    Px m_overflowOffset = 0;
    bool m_wraps = false;
};

LayoutPass::LayoutPass(const ToastMeasures& measures, const ToastText& title, const ToastText& text)
    : m(measures), m_titleText(title), m_textText(text)
{
    const QSize titleSize = title.oneLine();
    const QSize textSize = text.oneLine();
    m_title = {Px(titleSize.width()) + 1, titleSize.height()};
    m_text = {Px(textSize.width()) + 1, textSize.height()};
    m_spacing = title.isEmpty() || text.isEmpty() ? 0 : m.textSectionSpacing;
    if (m.showIcon) {
        const QMargins& icon = m.iconMargins;
        const QMargins& section = m.iconSectionMargins;
        m_iconSection.width = Px(section.left()) + icon.left() + m.iconSize.width() + icon.right() +
                              m.separatorWidth + section.right();
        m_iconSection.height =
            Px(section.top()) + icon.top() + m.iconSize.height() + icon.bottom() + section.bottom();
    }
    // A hidden close button takes no width, but its top and bottom margins still count.
    const QMargins& close = m.closeButtonMargins;
    m_closeSection.height = Px(close.top()) + close.bottom();
    if (m.showCloseButton) {
        m_closeSection.width = Px(close.left()) + m.closeButtonSize.width() + close.right();
        m_closeSection.height += m.closeButtonSize.height();
    }
    m_body.width = widthAround(qMax(m_title.width, m_text.width));
    m_body.height = heightAround(textSectionHeight(m_title.height, m_text.height));
}

ToastGeometry LayoutPass::run()
{
    if (m_body.width > m.maximumSize.width())
        wrapToMaximumWidth();
    if (m_body.height + m.durationBarHeight < m.minimumSize.height())
        wrapToMinimumHeight();
    else
        m_body.height += m.durationBarHeight;
    bound();

    ToastGeometry geometry;
    geometry.body = toSize(m_body.width, m_body.height);
    geometry.wrapsTexts = m_wraps;
    placeTexts(geometry);
    placeIcon(geometry);
    placeCloseButton(geometry);
    return geometry;
}

void LayoutPass::wrapToMaximumWidth()
{
    const Px missing = m.maximumSize.width() - m_body.width;
    const Px titleRoom = missing + qMax(m_title.width, m_text.width);
    if (titleRoom > 0)
        m_title.width = titleRoom;
    // The title's new width counts here.
    const Px textRoom = missing + qMax(m_text.width, m_title.width);
    if (textRoom >= 1)
        m_text.width = textRoom;
    if (!m_titleText.isEmpty())
        m_title.height = m.titleHeightAt(toInt(m_title.width));
    if (!m_textText.isEmpty())
        m_text.height = m.textHeightAt(toInt(m_text.width));
    m_wraps = true;
    m_body.width = m.maximumSize.width();
    m_body.height = heightAround(textSectionHeight(m_title.height, m_text.height));
}

/// Makes a toast taller by wrapping its texts: as wide as it can be without getting too low again.
void LayoutPass::wrapToMinimumHeight()
{
    const int longestWord = qMax(m_titleText.wrapped(0).width(), m_textText.wrapped(0).width());
    m_wraps = true;
    takeWrapped(longestWord);
    const int widest = toInt(m_body.width);
    if (longestWord <= widest) {
        const int width = widestTallWidth(longestWord, widest);
        if (width >= longestWord)
            takeWrapped(width);
    }
    m_body.width = widthAround(qMax(m_title.width, m_text.width));
    m_body.height = heightAround(textSectionHeight(m_title.height, m_text.height)) + m.durationBarHeight;
    const Px missing = m.minimumSize.height() - m_body.height;
    if (missing > 0) {
        m_centreOffset = half(missing);
        m_body.height = m.minimumSize.height();
    }
}

void LayoutPass::takeWrapped(int width)
{
    const QSize title = m_titleText.wrapped(width);
    const QSize text = m_textText.wrapped(width);
    m_title = {title.width(), title.height()};
    m_text = {text.width(), text.height()};
}

/// The last width before the first one in narrowest..widest at which the wrapped texts are too low;
/// narrowest - 1 if they are too low at once.
int LayoutPass::widestTallWidth(int narrowest, int widest) const
{
    // A lower bound of the height, which falls with the width, tells how far there is nothing to try.
    int safe = narrowest - 1;
    int unsafe = widest + 1;
    while (unsafe - safe > 1) {
        const int middle = safe + (unsafe - safe) / 2;
        if (isTallEnough(m_titleText.leastHeight(middle), m_textText.leastHeight(middle)))
            safe = middle;
        else
            unsafe = middle;
    }
    int width = safe;
    while (width < widest &&
           isTallEnough(m_titleText.wrapped(width + 1).height(), m_textText.wrapped(width + 1).height()))
        ++width;
    return width;
}

bool LayoutPass::isTallEnough(Px titleHeight, Px textHeight) const
{
    return heightAround(textSectionHeight(titleHeight, textHeight)) + m.durationBarHeight >=
           m.minimumSize.height();
}

void LayoutPass::bound()
{
    m_body.width = qMax<Px>(m_body.width, m.minimumSize.width());
    if (m_body.height > m.maximumSize.height()) {
        m_overflowOffset = half(m_body.height - m.maximumSize.height());
        m_body.height = m.maximumSize.height();
    }
}

void LayoutPass::placeTexts(ToastGeometry& geometry) const
{
    const Px width = qMax(m_title.width, m_text.width);
    const QMargins& section = m.textSectionMargins;
    const Px x = m.margins.left() + m_iconSection.width + section.left();
    const Px sectionHeight = textSectionHeight(m_title.height, m_text.height);
    const Px top = Px(section.top()) + m.margins.top() + half(tallestSection() - sectionHeight) +
                   m_centreOffset - m_overflowOffset;
    Px titleY = top;
    Px textY = top + m_title.height + m_spacing;
    // A single text is centred above the duration bar.
    if (m_titleText.isEmpty() && !m_textText.isEmpty())
        textY = half(m_body.height - (m_text.height + m.durationBarHeight));
    if (m_textText.isEmpty() && !m_titleText.isEmpty())
        titleY = half(m_body.height - (m_title.height + m.durationBarHeight));
    geometry.title = QRect(toPoint(x, titleY), toSize(width, m_title.height));
    geometry.text = QRect(toPoint(x, textY), toSize(width, m_text.height));
}

void LayoutPass::placeIcon(ToastGeometry& geometry) const
{
    const QMargins& icon = m.iconMargins;
    const QMargins& section = m.iconSectionMargins;
    const Px x = Px(section.left()) + m.margins.left() + icon.left();
    // Where texts are wrapped to fill a minimum height, the icon stays at the top.
    const Px y = half(tallestSection() - m_iconSection.height) + section.top() + m.margins.top() +
                 icon.top() - m_overflowOffset;
    geometry.icon = toPoint(x, y);
    geometry.separator = toPoint(x + m.iconSize.width() + icon.right(),
                                 Px(section.top()) + m.margins.top() + m_centreOffset - m_overflowOffset);
    // As high as the texts, also where the icon is higher.
    geometry.separatorHeight = toSize(0, textSectionHeight(m_title.height, m_text.height)).height();
}

void LayoutPass::placeCloseButton(ToastGeometry& geometry) const
{
    const QMargins& close = m.closeButtonMargins;
    const QSize size = m.showCloseButton ? m.closeButtonSize : QSize(0, 0);
    const Px right = m.showCloseButton ? close.right() : 0;
    const Px x = m_body.width - (right + size.width() + m.margins.right());
    const Px bar = m.durationBarHeight;
    switch (m.closeButtonAlignment) {
    case ToastButtonAlignment::TOP:
        geometry.closeButton = toPoint(x, Px(close.top()) + m.margins.top());
        break;
    case ToastButtonAlignment::MIDDLE:
        geometry.closeButton = toPoint(x, half(m_body.height - (size.height() + bar)));
        break;
    case ToastButtonAlignment::BOTTOM:
        geometry.closeButton =
            toPoint(x, m_body.height - (size.height() + bar + close.bottom() + m.margins.bottom()));
        break;
    }
}

Px LayoutPass::textSectionHeight(Px titleHeight, Px textHeight) const
{
    return titleHeight + m_spacing + textHeight + m.textSectionMargins.top() + m.textSectionMargins.bottom();
}

Px LayoutPass::widthAround(Px texts) const
{
    return m_iconSection.width + m_closeSection.width + texts + m.margins.left() +
           m.textSectionMargins.left() + m.textSectionMargins.right() + m.margins.right();
}

Px LayoutPass::heightAround(Px texts) const
{
    return qMax(texts, qMax(m_iconSection.height, m_closeSection.height)) + m.margins.top() +
           m.margins.bottom();
}

Px LayoutPass::tallestSection() const
{
    const Px texts = textSectionHeight(m_title.height, m_text.height);
    return qMax(texts, qMax(m_iconSection.height, m_closeSection.height));
}

} // namespace

ToastGeometry layOutToast(const ToastMeasures& measures, const ToastText& title, const ToastText& text)
{
    return LayoutPass(measures, title, text).run();
}

} // namespace WyWidgets
