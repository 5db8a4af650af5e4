#pragma once

#include <QByteArray>
#include <QString>

// A file a cache action writes: opened for output or for appending, written
// a statement at a time (each with CR LF behind it), and closed. Writes are
// gathered into large blocks. Every call answers with the run-time number
// of its failure (see CacheFailure), 0 when it went well; a print to a file
// that never opened fails with "bad file number", as the classic runtime's
// did, and once a block could not be written every later print fails too.
class CacheOutputFile
{
public:
    CacheOutputFile() = default;
    ~CacheOutputFile();
    CacheOutputFile(const CacheOutputFile&) = delete;
    CacheOutputFile& operator=(const CacheOutputFile&) = delete;

    // New makes a file that must not be there yet; Overwrite and Append take
    // one that is. None of them follows a link at the name, so nothing is
    // written outside the folder named.
    enum Mode
    {
        New,
        Overwrite,
        Append
    };
    int open(const QString& path, Mode mode = New);
    bool isOpen() const { return m_fd >= 0; }
    int print(const QByteArray& text);
    int close();

private:
    int flush();

    int m_fd = -1;
    int m_error = 0;
    QByteArray m_buffer;
};
