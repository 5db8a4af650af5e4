#include "NavigatorControls.h"

NavigatorControls::NavigatorControls()
{
    form.setText(QStringLiteral("Vorlan"));
    cmbNeighborhood.setToolTip(QStringLiteral("Click here to select a Neighborhood"));
    cmbSuburb.setToolTip(QStringLiteral("Click here to select a Suburb"));
    cmbSavedLinks.setToolTip(QStringLiteral("Click here to select a Saved Link"));
    lblComment.setText(QStringLiteral("Welcome to Vorlan! Select a Neighborhood please!"));
    cmdNext.setText(QStringLiteral("&Next"));
    cmdPrevious.setText(QStringLiteral("&Prev"));
    cmdOpenSite.setText(QStringLiteral("Op&en"));
    cmdGoBack.setText(QStringLiteral("&Back"));
    cmdGoBack.setEnabled(false);
    cmdQuite.setText(QStringLiteral("E&xit"));
    cmdSavedLinks0.setText(QStringLiteral("Sa&ve"));
    cmdSavedLinks0.setToolTip(QStringLiteral("Click here to save this link"));
    cmdSavedLinks1.setText(QStringLiteral("&Delete"));
    cmdSavedLinks1.setToolTip(QStringLiteral("Click here to Delete this Link"));
    cmdSavedLinks1.setVisible(false);
    mnuAutoNav.setText(QStringLiteral("&AutoNav"));
    mnuRandNav.setText(QStringLiteral("&RandNav"));
    mnuGeoTree.setText(QStringLiteral("&GeoTree"));
    mnuJapan.setText(QStringLiteral("Go&Japan"));
    mnuOnTop.setText(QStringLiteral("Keep OnTo&p"));
    mnuOptions.setText(QStringLiteral("Vorlan &Options"));
    mnuCache.setText(QStringLiteral("IE&Cache Manager"));
}
