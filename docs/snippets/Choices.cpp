#include "Window.h"

#include <WyWidgets/WyFlatTab.h>
#include <WyWidgets/WyFlatVTab.h>
#include <WyWidgets/WyFlowLayout.h>
#include <WyWidgets/WyHandleSlider.h>
#include <WyWidgets/WySelectFrame.h>

#include <QLabel>
#include <QLayout>
#include <QPushButton>

using namespace WyWidgets;

QObject* Window::handleSlider()
{
    //! [WyHandleSlider]
    auto* slider = new WyHandleSlider;
    slider->SetMaxValue(5400); // seconds of a film
    slider->SetSliderPos(1800);
    connect(slider, &WyHandleSlider::SignalPosChanged, this, &Window::seek);
    layout()->addWidget(slider);
    //! [WyHandleSlider]
    return slider;
}

QObject* Window::flatTab()
{
    //! [WyFlatTab]
    auto* tabs = new WyFlatTab;
    for (const QString& name : {tr("Files"), tr("Branches"), tr("Releases")})
        tabs->AddTab(name);
    layout()->addWidget(tabs);
    connect(tabs, &WyFlatTab::SignalSelectChanged, this, &Window::openPage);
    tabs->SelectTab(0);
    //! [WyFlatTab]
    return tabs;
}

QObject* Window::flatVTab()
{
    //! [WyFlatVTab]
    auto* list = new WyFlatVTab;
    for (const QString& name : {tr("General"), tr("Account"), tr("Shortcuts")})
        list->AddTab(name);
    list->findChild<QPushButton*>()->setChecked(true); // start with the first
    layout()->addWidget(list);
    connect(list, &WyFlatVTab::SignalSelectChanged, this, &Window::openPage);
    //! [WyFlatVTab]
    return list;
}

QObject* Window::flowLayout()
{
    auto* tags = new QWidget;
    layout()->addWidget(tags);
    //! [WyFlowLayout]
    // Margin, gaps in a row and between rows.
    auto* flow = new WyFlowLayout(tags, 6, 6, 6);
    for (const char* tag :
         {"telescope", "lens", "mirror", "eyepiece", "tripod", "finder", "camera"})
        flow->addWidget(new QPushButton(tag));
    //! [WyFlowLayout]
    return flow;
}

QObject* Window::selectFrame()
{
    auto* picture = new QLabel;
    picture->setMinimumSize(400, 260);
    picture->setStyleSheet(QStringLiteral("background: #56616D;"));
    layout()->addWidget(picture);
    //! [WySelectFrame]
    auto* frame = new WySelectFrame(WySelectFrame::kType_Points, picture);
    frame->setGeometry(40, 30, 240, 180);
    frame->SetFrameColor(QColor("#07BE8B"));
    frame->SetFrameScale(QSize(4, 3), true); // drags keep this ratio
    frame->SetText(tr("4 : 3"));
    connect(frame, &WySelectFrame::SignalWindowMoved, this, &Window::explain);
    //! [WySelectFrame]
    return frame;
}

QObject* Window::selectFrameMore()
{
    auto* picture = new QLabel;
    picture->setMinimumSize(400, 260);
    picture->setStyleSheet(QStringLiteral("background: #56616D;"));
    layout()->addWidget(picture);
    //! [WySelectFrame-more]
    auto* frame = new WySelectFrame(WySelectFrame::kType_Close, picture);
    frame->setGeometry(40, 30, 240, 180);
    frame->SetFrameColor(Qt::white);
    connect(frame, &WySelectFrame::SignalClickedClose, frame,
            &QObject::deleteLater);
    //! [WySelectFrame-more]
    return frame;
}
