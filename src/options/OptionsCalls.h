#pragma once

// The codes of frmOptCalls, through which other windows press the options
// dialog's buttons.
enum class OptCall
{
    ServerClick = 1 // Click of cmbServer: the catalogue lists read again
};
