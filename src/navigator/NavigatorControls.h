#pragma once

#include "core/Controls.h"

// The picture box of the Navigator: which picture list (USA or Japan) and
// which 1-based entry of it is on show.
class PictureControl : public Control
{
    Q_OBJECT
public:
    using Control::Control;
    bool japanList() const { return m_japan; }
    int entry() const { return m_entry; }
    void show(bool japanList, int entry)
    {
        m_japan = japanList;
        m_entry = entry;
        emit viewChanged();
    }

private:
    bool m_japan = false;
    int m_entry = 1;
};

// The controls of frmGeoCities as its rules see them. The window binds its
// widgets to these by name.
struct NavigatorControls
{
    Control form{QStringLiteral("frmGeoCities")}; // its text is the caption

    ListControl cmbNeighborhood{QStringLiteral("cmbNeighborhood")};
    ListControl cmbSuburb{QStringLiteral("cmbSuburb")};
    ListControl cmbHouseNumberPrefix{QStringLiteral("cmbHouseNumberPrefix")};
    ListControl cmbHouseNumberSuffix{QStringLiteral("cmbHouseNumberSuffix")};
    ListControl cmbSavedLinks{QStringLiteral("cmbSavedLinks")};
    SliderControl sldrHouseNumber{QStringLiteral("sldrHouseNumber"), 1000, 9999};
    Control txtFullAddress{QStringLiteral("txtFullAddress")};
    Control lblComment{QStringLiteral("lblComment")};
    PictureControl picNeighborhood{QStringLiteral("picNeighborhood")};

    Control cmdNext{QStringLiteral("cmdNext")};
    Control cmdPrevious{QStringLiteral("cmdPrevious")};
    Control cmdOpenSite{QStringLiteral("cmdOpenSite")};
    Control cmdGoBack{QStringLiteral("cmdGoBack")};
    Control cmdQuite{QStringLiteral("cmdQuite")};
    Control cmdSavedLinks0{QStringLiteral("cmdSavedLinks[0]")};
    Control cmdSavedLinks1{QStringLiteral("cmdSavedLinks[1]")};

    // Menu entries whose check or enabled state the rules keep.
    Control mnuAutoNav{QStringLiteral("mnuAutoNav")};
    Control mnuRandNav{QStringLiteral("mnuRandNav")};
    Control mnuGeoTree{QStringLiteral("mnuGeoTree")};
    Control mnuJapan{QStringLiteral("mnuJapan")};
    Control mnuOnTop{QStringLiteral("mnuOnTop")};
    Control mnuOptions{QStringLiteral("mnuOptions")};
    Control mnuCache{QStringLiteral("mnuCache")};

    NavigatorControls();
};
