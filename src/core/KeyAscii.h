#pragma once

class QKeyEvent;

// The character code a key types, as a key filter of the classic kind is
// handed it: 8 for Backspace, the first character typed otherwise (9 for
// Tab), -1 for a key that types nothing.
int KeyAscii(const QKeyEvent* key);
// The same for a box whose Tab keeps moving the focus: -1 for Tab.
int TypedCode(const QKeyEvent* key);
