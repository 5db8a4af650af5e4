#include "AddressComposer.h"

#include "ComposerHooks.h"
#include "NavigatorControls.h"
#include "core/SharedState.h"
#include "core/VbRuntime.h"

namespace {
// The pictures of the built-in Neighborhoods follow the general picture.
constexpr int UsaPictureEntries = 42;
constexpr int JapanPictureEntries = 15;
} // namespace

AddressComposer::AddressComposer(SharedState& state, NavigatorControls& controls,
                                 ComposerHooks& hooks)
    : m_state(state), m_c(controls), m_hooks(hooks)
{
    connectEvents();
}

void AddressComposer::connectEvents()
{
    QObject::connect(&m_c.cmbNeighborhood, &Control::clicked, [this] {
        m_hooks.StopAutoModes();
        m_hooks.LeaveSavedView();
        ValidateSelection();
        FillSuburbs();
        ComposeAddress();
    });
    QObject::connect(&m_c.cmbNeighborhood, &Control::changed, [this] {
        if (!ControlsReady)
            return;
        ValidateSelection();
        FillSuburbs();
        ComposeAddress();
    });
    QObject::connect(&m_c.cmbSuburb, &Control::clicked, [this] {
        m_hooks.LeaveSavedView();
        m_hooks.StopAutoModes();
        ValidateSelection();
        ComposeAddress();
    });
    QObject::connect(&m_c.cmbSuburb, &Control::changed, [this] {
        if (ControlsReady)
            ValidateSelection();
        ComposeAddress();
    });
    for (ListControl* digits : {&m_c.cmbHouseNumberPrefix, &m_c.cmbHouseNumberSuffix}) {
        QObject::connect(digits, &Control::clicked, [this] { digitListClick(); });
        QObject::connect(digits, &Control::changed, [this] {
            if (ControlsReady)
                ComposeAddress();
        });
    }
    QObject::connect(&m_c.sldrHouseNumber, &Control::changed, [this] {
        HouseNumber = QString::number(m_c.sldrHouseNumber.value());
        ComposeAddress();
    });
    QObject::connect(&m_c.sldrHouseNumber, &Control::clicked, [this] { m_hooks.LeaveSavedView(); });
    QObject::connect(&m_c.txtFullAddress, &Control::changed,
                     [this] { m_c.txtFullAddress.setToolTip(m_c.txtFullAddress.text()); });
    QObject::connect(&m_c.cmdNext, &Control::clicked, [this] { NextClick(); });
    QObject::connect(&m_c.cmdPrevious, &Control::clicked, [this] { PreviousClick(); });
    QObject::connect(&m_c.cmdGoBack, &Control::clicked, [this] { m_hooks.GoBack(); });
}

void AddressComposer::FillDigitLists()
{
    for (int i = 0; i <= 99; ++i) {
        const QString digits = QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'));
        m_c.cmbHouseNumberSuffix.addItem(digits);
        if (i >= 10)
            m_c.cmbHouseNumberPrefix.addItem(digits);
    }
}

void AddressComposer::digitListClick()
{
    HouseNumber = m_c.cmbHouseNumberPrefix.text() + m_c.cmbHouseNumberSuffix.text();
    m_hooks.StopAutoModes();
    m_hooks.LeaveSavedView();
    ComposeAddress();
}

QString AddressComposer::AddressText(const QString& neighborhood, const QString& suburb,
                                     const QString& house) const
{
    QString separator;
    if (!suburb.isEmpty())
        separator = m_state.gblnJapan ? QStringLiteral("-") : QStringLiteral("/");
    return m_state.gstrSiteLabel + neighborhood + separator + suburb + QLatin1Char('/') + house +
           QLatin1Char('/');
}

void AddressComposer::ComposeAddress()
{
    if (!(Vb::Val(HouseNumber) > 0))
        return;
    try {
        // The slider's change handler trims HouseNumber and composes once
        // more; a number the slider refuses leaves everything as it stood.
        m_c.sldrHouseNumber.setValue(Vb::CLng(HouseNumber));
    } catch (const VbError&) {
        return;
    }
    m_c.cmbHouseNumberPrefix.setText(HouseNumber.left(2));
    m_c.cmbHouseNumberSuffix.setText(HouseNumber.right(2));
    m_c.txtFullAddress.setText(
        AddressText(m_c.cmbNeighborhood.text(), m_c.cmbSuburb.text(), HouseNumber));
}

int AddressComposer::PictureEntry(bool japan, int neighborhood)
{
    const int entries = japan ? JapanPictureEntries : UsaPictureEntries;
    return neighborhood < entries ? neighborhood + 1 : 1;
}

void AddressComposer::FillSuburbs()
{
    const CatalogueData& cat = m_state.catalogue;
    if (m_c.cmbNeighborhood.text().isEmpty())
        return;
    const int i = cat.find(m_c.cmbNeighborhood.text());
    if (i == 0)
        return;
    m_c.cmbSuburb.clear();
    m_c.lblComment.setText(cat.gastrDescription.value(i));
    CurrentNeighborhood = static_cast<qint16>(i);
    m_c.picNeighborhood.show(m_state.gblnJapan, PictureEntry(m_state.gblnJapan, i));
    for (int s = 1; s <= cat.gaintSuburbCount.value(i); ++s)
        m_c.cmbSuburb.addItem(cat.suburb(i, s));
}

void AddressComposer::ValidateSelection()
{
    const CatalogueData& cat = m_state.catalogue;
    const int i = cat.find(m_c.cmbNeighborhood.text());
    if (i != 0 && m_c.cmbSavedLinks.text().isEmpty())
        m_c.lblComment.setText(cat.gastrDescription.value(i));
    bool suburbMatched = false;
    if (!m_c.cmbSuburb.text().isEmpty() && i != 0) {
        for (int s = 1; s <= cat.gaintSuburbCount.value(i) && !suburbMatched; ++s)
            suburbMatched = cat.suburb(i, s) == m_c.cmbSuburb.text();
    }
    if (i == 0) {
        m_hooks.LeaveSavedView();
        m_c.cmbNeighborhood.setText(cat.gastrCatalogue[0][0]);
    }
    if (!suburbMatched)
        m_c.cmbSuburb.setText(QString(""));
}

void AddressComposer::NextClick()
{
    if (m_hooks.RandNavRunning()) {
        m_hooks.RandNavStep();
        return;
    }
    if (const int captured = m_hooks.CapturedStep(HouseNumber, 1)) {
        HouseNumber = QString::number(captured);
    } else {
        HouseNumber = Vb::Str(Vb::Val(HouseNumber) + 1);
        if (Vb::Val(HouseNumber) == 10000)
            HouseNumber = QStringLiteral("1000");
    }
    ComposeAddress();
    m_hooks.OpenSite();
}

void AddressComposer::PreviousClick()
{
    // No RandNav test here: Prev steps down even while RandNav runs.
    if (const int captured = m_hooks.CapturedStep(HouseNumber, -1)) {
        HouseNumber = QString::number(captured);
    } else {
        HouseNumber = Vb::Str(Vb::Val(HouseNumber) - 1);
        if (Vb::Val(HouseNumber) == 999)
            HouseNumber = QStringLiteral("9999");
    }
    ComposeAddress();
    m_hooks.OpenSite();
}
