#pragma once

class QKeyEvent;

// The character code a key types, 8 for Backspace, -1 for a key that types
// nothing or moves the focus (Tab keeps moving it in every box).
int TypedCode(const QKeyEvent* key);
