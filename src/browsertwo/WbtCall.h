#pragma once

// The codes of frmWBTCalls, through which other windows press Browser
// Two's buttons.
enum class WBTCall
{
    LoadServerList = 1, // the server and title tables changed
};
