#include "KeyAscii.h"

#include <QKeyEvent>

int KeyAscii(const QKeyEvent* key)
{
    if (key->key() == Qt::Key_Backspace)
        return 8;
    return key->text().isEmpty() ? -1 : key->text().at(0).unicode();
}

int TypedCode(const QKeyEvent* key)
{
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
        return -1;
    return KeyAscii(key);
}
