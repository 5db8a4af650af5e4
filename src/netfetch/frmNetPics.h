#pragma once

#include "NetPic.h"
#include "NetPicHost.h"

#include <QWidget>
#include <functional>
#include <memory>

class QLineEdit;

// NetPic, "Photos from Internet sites": the window around NetPic's rules.
class frmNetPics : public QWidget, public NetPicHost
{
    Q_OBJECT
public:
    // paging hands the pages to Browser One; treeWidth gives the tree
    // window's width in twips, 0 while it is closed.
    frmNetPics(AppContext& ctx, MainWindowCalls& main,
               std::function<void(const QStringList&)> paging, std::function<int()> treeWidth);
    ~frmNetPics() override;

    NetPic& rules() { return *m_rules; }

    // NetPicHost
    void CommunicatWithNetPic(const QStringList& pages) override;
    void unloadNetPics() override;
    void pumpEvents() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void place();
    QLineEdit* edit(Control& model, const QString& accessibleName);

    AppContext& m_ctx;
    std::function<void(const QStringList&)> m_paging;
    std::function<int()> m_treeWidth;
    std::unique_ptr<NetPic> m_rules;
    QLineEdit* m_snum = nullptr;
    QLineEdit* m_enum = nullptr;
    QLineEdit* m_pref = nullptr;
    QWidget* m_label2 = nullptr;
    bool m_closed = false;
};
