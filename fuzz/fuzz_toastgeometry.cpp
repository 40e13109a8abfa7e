#include "FuzzTarget.h"

#include "wycontrol/ToastGeometryModel.h"

#include <QTextDocument>

namespace {

QSize sizeFrom(Fuzz::Input& input, int most)
{
    const int width = input.between(0, most);
    return {width, input.between(0, most)};
}

QMargins marginsFrom(Fuzz::Input& input)
{
    int sides[4];
    for (int& side : sides)
        side = input.byte() % 40 - 12;
    return {sides[0], sides[1], sides[2], sides[3]};
}

ToastGeometry::Settings settingsFrom(Fuzz::Input& input)
{
    ToastGeometry::Settings s;
    s.textFont = QFont(QStringLiteral("DejaVu Sans"), 6 + input.byte() % 20);
    s.showIcon = input.flag();
    s.iconSize = sizeFrom(input, 80);
    s.showSeparator = input.flag();
    s.separatorWidth = input.byte() % 12;
    s.showCloseButton = input.flag();
    s.closeButtonSize = sizeFrom(input, 60);
    s.alignment = static_cast<WyWidgets::ToastButtonAlignment>(input.byte() % 4);
    s.showBar = input.flag();
    s.spacing = input.byte() % 24 - 4;
    s.m = marginsFrom(input);
    s.im = marginsFrom(input);
    s.ism = marginsFrom(input);
    s.tsm = marginsFrom(input);
    s.cbm = marginsFrom(input);
    s.minimum = sizeFrom(input, 500);
    if (input.flag())
        s.maximum = s.minimum + sizeFrom(input, 400);
    s.title = input.text(static_cast<std::size_t>(input.byte() % 30));
    s.text = input.text(200);
    return s;
}

QString told(const ToastGeometry::Settings& settings)
{
    QString result;
    QDebug(&result) << "the places of a toast with" << settings.title << settings.text << settings.minimum
                    << settings.maximum;
    return result;
}

} // namespace

void Fuzz::check(Input& input)
{
    WyWidgets::WyToast::setMaximumOnScreen(1000000);
    const ToastGeometry::Settings settings = settingsFrom(input);
    // What the platform calls a rich text is measured as plain text, but shown by a label that lays it out.
    if (Qt::mightBeRichText(settings.title) || Qt::mightBeRichText(settings.text))
        return;
    ToastGeometry::Model model(settings);
    const QStringList expected = model.places().lines();
    expectEqual(ToastGeometry::shownPlaces(settings).lines().join(QLatin1Char('\n')),
                expected.join(QLatin1Char('\n')), qPrintable(told(settings)));
    WyTest::flushDeletions();
}
