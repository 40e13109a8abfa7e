#pragma once

#include <QScrollArea>

class KnobPanel;
class QVBoxLayout;

/// One page of the gallery: a heading, an introduction and examples, each with its knobs and its source
/// beside it.
class GalleryPage : public QScrollArea
{
    Q_OBJECT

public:
    GalleryPage(const QString& heading, const QString& introduction, QWidget* parent = nullptr);

    /// Appends an example and takes ownership of both widgets. `knobs` may be null, `snippet` may be empty.
    void addExample(const QString& title, QWidget* example, KnobPanel* knobs, const QString& snippet);

    /// Appends a widget that needs no frame and takes ownership of it.
    void addPlain(QWidget* widget);

    /// Called when the page is about to be photographed: show what is otherwise seen only after a click
    /// (a toast, a dialog, a bubble). The picture is taken a second later.
    virtual void prepareForPicture();
    /// Called after the picture: take away what prepareForPicture() has shown.
    virtual void endPicture();

    /// A stage with the control at its own size, at the left, and what explains it beside it.
    static QWidget* atOwnSize(QWidget* control, QWidget* beside = nullptr);
    /// A small thing with a label below it.
    static QWidget* captioned(QWidget* thing, const QString& caption);

signals:
    /// The page wants another one to be opened.
    void pageRequested(const QString& name);

private:
    QWidget* createStage(const QString& title, QWidget* example);
    QWidget* createCode(const QString& snippet);

    QVBoxLayout* m_examples;
};
