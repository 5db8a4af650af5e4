#pragma once

#include "GeoFtp.h"

#include <QDialog>
#include <memory>

// "Publish": the host, user id and password, five file slots, Send, Close
// and Quick Page, with the status line below. The rules are GeoFtp's.
class frmGeoFtp : public QDialog
{
    Q_OBJECT
public:
    frmGeoFtp(AppContext& ctx, GeoFtp::Links links, QWidget* parent = nullptr);
    ~frmGeoFtp() override;

    GeoFtp& rules() { return *m_rules; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void place();

    AppContext& m_ctx;
    std::unique_ptr<GeoFtp> m_rules;
};
