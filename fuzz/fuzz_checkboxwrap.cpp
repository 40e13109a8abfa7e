#include "FuzzTarget.h"

#include "WyWidgets/wycontrol/WyCheckBox.h"
#include "support/WrapModels.h"

void Fuzz::check(Input& input)
{
    WyWidgets::WyCheckBox box{QString()};
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(input.between(6, 40));
    font.setKerning(input.flag());
    box.setFont(font);
    const int width = input.between(0, 900);
    const QString text = input.text(2000);
    loadFonts(text, box.font());
    const QString expected = WyTest::wrappedPlainly(text, box.font(), width);
    box.setText(text);
    box.wrapLines(width);
    expectEqual(box.text(), expected, "wrapLines");
}
