#pragma once

#include <QString>
#include <stdexcept>

// The conversions and text helpers that the program's rules are written in.
// A conversion that cannot be made throws VbError with the run-time error
// number of the classic runtime (6 overflow, 13 type mismatch, 380 invalid
// property value), so that a procedure's error trap can decide what follows.
class VbError : public std::runtime_error
{
public:
    enum Number
    {
        Overflow = 6,
        TypeMismatch = 13,
        InvalidPropertyValue = 380,
        FileNotFound = 53
    };
    VbError(int number, const QString& what);
    int number() const { return m_number; }

private:
    int m_number;
};

namespace Vb {

// Val: the leading number of a text; blanks anywhere are skipped, anything
// else ends the number. Never fails: a text without a number is 0.
double Val(const QString& text);

// IsNumeric: the whole text (blanks around it allowed) is one number.
bool IsNumeric(const QString& text);

// CInt and CLng: a numeric text rounded half to even into 16 or 32 bits.
// A text that is not a number throws TypeMismatch, one out of range Overflow.
qint16 CInt(const QString& text);
qint32 CLng(const QString& text);
qint16 CInt(double value);
qint32 CLng(double value);

// Str: a number as text, with the leading blank that non-negative numbers get.
QString Str(double value);

} // namespace Vb
