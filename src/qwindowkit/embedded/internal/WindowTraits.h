#pragma once

class QWidget;

namespace QWK {

bool hasFixedWidth(const QWidget* window);
bool hasFixedHeight(const QWidget* window);
bool hasFixedSize(const QWidget* window);

/// Whether the user may maximise the window: it has the hint and its size is not fixed.
bool canMaximize(const QWidget* window);
bool canMinimize(const QWidget* window);

} // namespace QWK
