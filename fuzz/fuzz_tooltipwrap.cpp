#include "FuzzTarget.h"

#include "WyWidgets/frame/WyWidgetUtils.h"
#include "support/WrapModels.h"

#include <QToolTip>

void Fuzz::check(Input& input)
{
    const int width = input.between(0, 600);
    const QString text = input.text(2000);
    loadFonts(text, QToolTip::font());
    expectEqual(WyWidgets::WyWidgetUtils::ToolTipWrap(text, width), WyTest::plainWrap(text, width),
                "ToolTipWrap");
}
