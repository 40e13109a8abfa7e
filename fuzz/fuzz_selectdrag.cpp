#include "FuzzTarget.h"

#include "WyWidgets/layout/WySelectFrame.h"
#include "layout/SelectFrameModel.h"

#include <QApplication>
#include <QMouseEvent>

using WyWidgets::WySelectFrame;

namespace {

void send(WySelectFrame& frame, QEvent::Type type, QPointF local, Qt::MouseButton button,
          Qt::MouseButtons buttons)
{
    const QPointF global = QPointF(frame.mapToGlobal(QPoint(0, 0))) + local;
    QMouseEvent event(type, local, QPointF(frame.pos()) + local, global, button, buttons, {});
    QApplication::sendEvent(&frame, &event);
}

/// In quarters of a pixel. The first point adds an eighth, so that no sum is half a pixel, which has two
/// nearest ones.
QPointF pointFrom(Fuzz::Input& input, int reach)
{
    const int x = input.between(-reach * 4, reach * 4);
    return {x / 4.0, input.between(-reach * 4, reach * 4) / 4.0};
}

QString described(const QRect& rect)
{
    return QStringLiteral("%1, %2, %3 x %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace

void Fuzz::check(Input& input)
{
    QWidget area;
    SelectFrameModel model;
    model.parentW = input.between(300, 900);
    model.parentH = input.between(300, 900);
    model.keep = input.flag();
    model.ratioW = input.between(1, 20);
    model.ratioH = input.between(1, 20);
    area.resize(model.parentW, model.parentH);
    WySelectFrame frame(WySelectFrame::kType_Points, &area);
    frame.SetFrameScale(QSize(model.ratioW, model.ratioH), model.keep);
    frame.setGeometry(input.between(-20, 300), input.between(-20, 300), 30 + input.byte(), 30 + input.byte());
    area.show();
    model.x = frame.x();
    model.y = frame.y();
    model.w = frame.width();
    model.h = frame.height();
    QPointF pointer = QPointF(frame.pos()) + QPointF(0.125, 0.125) +
                      QPointF(input.between(0, model.w), input.between(0, model.h));
    const QPointF pressed = pointer - QPointF(frame.pos());
    send(frame, QEvent::MouseButtonPress, pressed, Qt::LeftButton, Qt::LeftButton);
    model.press(pressed);
    while (!input.atEnd()) {
        pointer += pointFrom(input, 150);
        const QPointF local = pointer - QPointF(frame.pos());
        send(frame, QEvent::MouseMove, local, Qt::NoButton, Qt::LeftButton);
        model.drag(local);
        expectEqual(described(frame.geometry()), described(QRect(model.x, model.y, model.w, model.h)),
                    "the dragged frame");
    }
}
