#pragma once

#include <QString>

class ComposerHooks;
struct NavigatorControls;
struct SharedState;

// Keeps Neighborhood, Suburb, house number, the controls that show them and
// the composed address consistent. The address reads
//   gstrSiteLabel + Neighborhood + separator + Suburb + "/" + HouseNumber + "/"
// with no separator for an empty Suburb, "/" on the USA site and "-" on the
// Japan site.
class AddressComposer
{
public:
    AddressComposer(SharedState& state, NavigatorControls& controls, ComposerHooks& hooks);

    QString HouseNumber;
    bool ControlsReady = false;
    qint16 CurrentNeighborhood = 0;

    // Fills the two digit lists: "00" to "99" and "10" to "99".
    void FillDigitLists();

    void ComposeAddress();
    void FillSuburbs();
    void ValidateSelection();

    // The address text for the given parts, as ComposeAddress writes it.
    QString AddressText(const QString& neighborhood, const QString& suburb,
                        const QString& house) const;
    // The picture entry of Neighborhood i in the region's list.
    static int PictureEntry(bool japan, int neighborhood);

    void NextClick();
    void PreviousClick();

private:
    void connectEvents();
    void digitListClick();

    SharedState& m_state;
    NavigatorControls& m_c;
    ComposerHooks& m_hooks;
};
