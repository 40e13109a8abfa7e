#include "FuzzTarget.h"

#include "WyWidgets/frame/WyWidgetUtils.h"
#include "support/WrapModels.h"

void Fuzz::check(Input& input)
{
    const int width = input.between(0, 600);
    const QString text = input.text(2000);
    expectEqual(WyWidgets::WyWidgetUtils::ToolTipWrap(text, width), WyTest::plainWrap(text, width),
                "ToolTipWrap");
}
