#include "WidgetPrompts.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {
QString displayText(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    while (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text;
}

// "*.*" would hide the files without a dot in their names here.
QString dialogFilters(const QStringList& filters)
{
    return filters.join(QStringLiteral(";;"))
        .replace(QStringLiteral("(*.*)"), QStringLiteral("(*)"));
}

QString windowTitle(const QString& title)
{
    return title.isEmpty() ? QStringLiteral("Vorlan") : title;
}
} // namespace

QWidget* WidgetPrompts::parent()
{
    return QApplication::activeWindow();
}

int WidgetPrompts::msgBox(const QString& text, int style, const QString& title)
{
    QMessageBox box(parent());
    box.setWindowTitle(windowTitle(title));
    box.setText(displayText(text));
    switch (style & 0x70) {
    case Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    case Question:
        box.setIcon(QMessageBox::Question);
        break;
    case Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case Information:
        box.setIcon(QMessageBox::Information);
        break;
    default:
        break;
    }
    switch (style & 7) {
    case OkCancel:
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        break;
    case YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    case YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    default:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    }
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Yes;
    case QMessageBox::No:
        return No;
    case QMessageBox::Cancel:
        return Cancel;
    default:
        return Ok;
    }
}

QString WidgetPrompts::inputBox(const QString& prompt, const QString& title,
                                const QString& defaultText)
{
    bool ok = false;
    const QString text = QInputDialog::getText(parent(), windowTitle(title), displayText(prompt),
                                               QLineEdit::Normal, defaultText, &ok);
    return ok ? text : QString();
}

QString WidgetPrompts::openFileName(const QString& title, const QString& startFolder,
                                    const QStringList& filters, int selectedFilter)
{
    QString selected = dialogFilters({filters.value(selectedFilter)});
    return QFileDialog::getOpenFileName(parent(), windowTitle(title), startFolder,
                                        dialogFilters(filters), &selected);
}

QString WidgetPrompts::saveFileName(const QString& title, const QString& startPath,
                                    const QStringList& filters, int selectedFilter)
{
    QString selected = dialogFilters({filters.value(selectedFilter)});
    return QFileDialog::getSaveFileName(parent(), windowTitle(title), startPath,
                                        dialogFilters(filters), &selected);
}

QString WidgetPrompts::folderName(const QString& title, const QString& startFolder)
{
    return QFileDialog::getExistingDirectory(parent(), windowTitle(title), startFolder);
}

// Qt's font dialog has no colour: it stands inside a dialog of its own with
// a colour button beside OK and Cancel.
bool WidgetPrompts::fontDialog(const QString& title, FontChoice& choice)
{
    QDialog dialog(parent());
    dialog.setWindowTitle(windowTitle(title));
    auto* fonts = new QFontDialog(&dialog);
    fonts->setWindowFlags(Qt::Widget);
    fonts->setOptions(QFontDialog::NoButtons);
    QColor colour = Qt::black;
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QPushButton* pick = buttons->addButton(QObject::tr("Color..."), QDialogButtonBox::ActionRole);
    QObject::connect(pick, &QPushButton::clicked, &dialog, [&] {
        const QColor chosen = QColorDialog::getColor(colour, &dialog);
        if (chosen.isValid())
            colour = chosen;
    });
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(fonts);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const QFont font = fonts->currentFont();
    choice.name = font.family();
    choice.pointSize = font.pointSizeF();
    choice.color = colour.red() + 256 * colour.green() + 65536 * colour.blue();
    return true;
}

void WidgetPrompts::openExternally(const QString& urlOrPath)
{
    const QUrl url = QFileInfo::exists(urlOrPath) ? QUrl::fromLocalFile(urlOrPath)
                                                  : QUrl::fromUserInput(urlOrPath);
    QDesktopServices::openUrl(url);
}
