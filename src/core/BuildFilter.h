#pragma once

#include <QString>
#include <QStringList>

class PromptService;
struct AppContext;

// Asks for a file to open, offering all files and the files of ext1 and
// ext2 ("txt", "mdb" or any other extension; an empty one is left out),
// with ext1's entry selected when it is given. The dialog starts in folder
// when that exists, else in the output directory. The chosen file's path,
// or the empty text when the dialog was cancelled or the file does not
// exist. The unused argument is kept for the callers that pass it; title
// is the dialog's, where a window sets one.
QString BuildFilter(AppContext& ctx, const QString& folder, const QString& unused,
                    const QString& ext1, const QString& ext2, const QString& title = QString());
QString BuildFilter(PromptService& prompts, const QString& outputDirectory, const QString& folder,
                    const QString& ext1, const QString& ext2, const QString& title = QString());

// The file dialog's filter in the classic form, "Name|pattern|" pairs, as
// entries "Name (pattern)"; several patterns ("*.gif;*.jpg") are joined by
// blanks, and a name that ends in its pattern already is kept as it is.
QStringList FileDialogFilters(const QString& classicFilter);
