#pragma once

#include "LinkExport.h"

#include <QDialog>
#include <functional>
#include <memory>

// "Export Saved Links": the four export formats, the choice to open the
// page, Export and Cancel. The rules are LinkExport's; the dialog binds.
class frmExport : public QDialog
{
    Q_OBJECT
public:
    // openPage opens a finished page in the navigator's browser.
    frmExport(AppContext& ctx, std::function<void(const QString&)> openPage,
              QWidget* parent = nullptr);
    ~frmExport() override;

    LinkExport& rules() { return *m_rules; }

private:
    std::unique_ptr<LinkExport> m_rules;
};
