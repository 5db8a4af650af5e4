#include "KeyCodes.h"

#include <QKeyEvent>

int TypedCode(const QKeyEvent* key)
{
    if (key->key() == Qt::Key_Backspace)
        return 8;
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
        return -1;
    return key->text().isEmpty() ? -1 : key->text().at(0).unicode();
}
