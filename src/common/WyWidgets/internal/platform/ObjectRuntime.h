#pragma once

// The part of macOS's object runtime that native window calls go through. Its own folder on the include path
// may put another header of this name before it: tests record the messages so.

#include <objc/message.h>
#include <objc/runtime.h>

/// The application object, null until it exists.
extern "C" id NSApp;
