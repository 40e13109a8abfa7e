#pragma once

#include "WyWidgets/WyExport.h"

#include <QKeySequence>
#include <QLineEdit>

namespace WyWidgets {

/// An edit that records a keyboard shortcut from the keys pressed in it.
///
/// While modifiers are held it shows them; the next key completes the combination, which is recorded when the
/// key is released. Releasing modifiers alone brings the recorded shortcut back, and so does any key of the
/// keypad. Make it read-only, as a recorder should be; otherwise the edit also types what is pressed:
///
///     auto* edit = new WyShortcutEdit(this);
///     edit->setReadOnly(true);
///     edit->SetKeySequence(QKeySequence(tr("Ctrl+Shift+S")));
class WYWIDGETS_EXPORT WyShortcutEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty edit.
    explicit WyShortcutEdit(QWidget* parent = nullptr);

    /// Records the sequence and shows it.
    void SetKeySequence(const QKeySequence& sequence);
    /// The recorded shortcut as the platform writes it, in spite of the name: QKeySequence::NativeText. Empty
    /// until one is recorded.
    QString portableText() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    QKeySequence m_sequence;
};

/// True if the sequence has no portable text: it is empty, or has modifiers and no key.
WYWIDGETS_EXPORT bool isOnlyContainsModifiers(const QKeySequence& sequence);

} // namespace WyWidgets
