#include "frmOutPutDir.h"

#include "FolderTree.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

frmOutPutDir::frmOutPutDir(std::function<void(const QString&)> PassVariable, QWidget* parent)
    : QDialog(parent), m_pass(std::move(PassVariable))
{
    setObjectName(QStringLiteral("frmOutPutDir"));
    setWindowTitle(QStringLiteral("Default Output Dir"));
    auto* layout = new QVBoxLayout(this);
    Dir1 = new FolderTree(this);
    Dir1->setObjectName(QStringLiteral("Dir1"));
    Dir1->setAccessibleName(QStringLiteral("Output folder"));
    layout->addWidget(Dir1, 1);
    auto* buttons = new QHBoxLayout;
    OKButton = new QPushButton(QStringLiteral("OK"), this);
    OKButton->setObjectName(QStringLiteral("OKButton"));
    CancelButton = new QPushButton(QStringLiteral("Cancel"), this);
    CancelButton->setObjectName(QStringLiteral("CancelButton"));
    buttons->addStretch();
    buttons->addWidget(OKButton);
    buttons->addWidget(CancelButton);
    layout->addLayout(buttons);
    resize(360, 400);
    connect(OKButton, &QPushButton::clicked, this, &frmOutPutDir::OKClick);
    connect(CancelButton, &QPushButton::clicked, this, &frmOutPutDir::reject);
}

void frmOutPutDir::Fake(const QString& path)
{
    Dir1->setPath(path.endsWith('/') && path.size() > 1 ? path.chopped(1) : path);
    exec();
}

void frmOutPutDir::OKClick()
{
    const QString path = Dir1->path();
    if (path.isEmpty())
        return;
    answer(path.endsWith('/') ? QString() : path + '/');
    accept();
}

// Cancel, Escape and the close box: the cache window reads the stored
// folder again.
void frmOutPutDir::reject()
{
    answer(QStringLiteral("aborted"));
    QDialog::reject();
}

void frmOutPutDir::answer(const QString& result)
{
    if (m_answered)
        return;
    m_answered = true;
    m_pass(result);
}
