#include "WyWidgets/wycontrol/WySimpleToast.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

using WyWidgets::WySimpleToast;

namespace {

constexpr QSize kParentSizePx(1200, 800);
const char* const kText = "The report has been saved";

void deliver()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QPixmap makePicture()
{
    QPixmap picture(50, 50);
    picture.fill(Qt::white);
    return picture;
}

/// From the constructor to the end of both fades, which take no time here.
void SimpleToastShowToHidden(benchmark::State& state)
{
    QWidget parent;
    parent.resize(kParentSizePx);
    parent.show();
    const QPixmap picture = makePicture();
    for (auto _ : state) {
        const QPointer<WySimpleToast> toast = new WySimpleToast(&parent);
        toast->setText(QString::fromLatin1(kText));
        toast->setIcon(picture);
        toast->setShowDuration(0);
        toast->setHideDuration(0);
        toast->show();
        deliver();
        toast->hideAnimation();
        deliver();
        if (toast) {
            state.SkipWithError("the toast is still there");
            break;
        }
    }
}
BENCHMARK(SimpleToastShowToHidden);

void FrameShowToHidden(benchmark::State& state)
{
    QWidget parent;
    parent.resize(kParentSizePx);
    parent.show();
    const QPixmap picture = makePicture();
    for (auto _ : state) {
        auto* frame = new QFrame(&parent, Qt::Window | Qt::FramelessWindowHint);
        auto* layout = new QHBoxLayout(frame);
        auto* icon = new QLabel;
        auto* text = new QLabel(QString::fromLatin1(kText));
        icon->setPixmap(picture);
        layout->addWidget(icon);
        layout->addWidget(text);
        frame->show();
        deliver();
        delete frame;
        deliver();
    }
}
BENCHMARK(FrameShowToHidden);

} // namespace
