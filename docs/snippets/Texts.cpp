#include "Window.h"

#include <WyWidgets/WyClearEdit.h>
#include <WyWidgets/WyDotLabel.h>
#include <WyWidgets/WyElidedLabel.h>
#include <WyWidgets/WyIntValidator.h>
#include <WyWidgets/WyLabel.h>
#include <WyWidgets/WyPasswordEdit.h>
#include <WyWidgets/WyShortcutEdit.h>

#include <QLayout>

using namespace WyWidgets;

QObject* Window::label()
{
    //! [WyLabel]
    auto* heading = new WyLabel;
    heading->setText(tr("3 new messages"));
    heading->setCursor(Qt::PointingHandCursor);
    connect(heading, &WyLabel::clicked, this, &Window::showNews);
    layout()->addWidget(heading);
    //! [WyLabel]
    return heading;
}

QObject* Window::elidedLabel()
{
    //! [WyElidedLabel]
    const QString path("/home/user/pictures/2026/holidays/"
                       "the-long-way-round-the-lake-in-the-evening.jpg");
    auto* label = new WyElidedLabel(path);
    label->setToolTip(path); // to read what is cut off
    layout()->addWidget(label);
    //! [WyElidedLabel]
    return label;
}

QObject* Window::dotLabel()
{
    //! [WyDotLabel]
    auto* inbox = new WyDotLabel;
    inbox->setText(tr("Inbox"));
    inbox->setMargin(12); // room for the dot
    inbox->SetDotVisible(true);
    layout()->addWidget(inbox);
    layout()->setAlignment(inbox, Qt::AlignLeft);
    //! [WyDotLabel]
    return inbox;
}

QObject* Window::clearEdit()
{
    //! [WyClearEdit]
    auto* edit = new WyClearEdit;
    edit->setPlaceholderText(tr("Search"));
    edit->setText(tr("telescope"));
    // Also when the button has cleared the text.
    connect(edit, &QLineEdit::textChanged, this, &Window::search);
    layout()->addWidget(edit);
    //! [WyClearEdit]
    return edit;
}

QObject* Window::passwordEdit()
{
    //! [WyPasswordEdit]
    auto* edit = new WyPasswordEdit;
    edit->setPlaceholderText(tr("Password"));
    connect(edit, &QLineEdit::returnPressed, this, &Window::upload);
    layout()->addWidget(edit);
    //! [WyPasswordEdit]
    edit->setText(QStringLiteral("correct horse"));
    return edit;
}

QObject* Window::shortcutEdit()
{
    //! [WyShortcutEdit]
    auto* edit = new WyShortcutEdit;
    edit->setReadOnly(true); // a recorder, not an edit
    edit->SetKeySequence(QKeySequence("Ctrl+Shift+S"));
    layout()->addWidget(edit);

    // when the preferences are saved:
    const QKeySequence recorded =
        QKeySequence::fromString(edit->portableText(), QKeySequence::NativeText);
    //! [WyShortcutEdit]
    return recorded.isEmpty() ? nullptr : edit;
}

QObject* Window::intValidator()
{
    //! [WyIntValidator]
    auto* port = new QLineEdit("8080");
    auto* validator = new WyIntValidator(1, 65535, port);
    port->setValidator(validator); // refuses 65536 while it is typed
    layout()->addWidget(port);
    //! [WyIntValidator]
    return validator;
}
