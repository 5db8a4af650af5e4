#pragma once

class MdbChooser;

// The two small windows of the word sources, as the rules open them: the
// window side (or a test) implements this.
class WordListDialogs
{
public:
    virtual ~WordListDialogs() = default;

    // frmNPListName, modeless: Ok or Cancel leaves the answer in
    // SharedState::gstrNewListName.
    virtual void showListName() = 0;
    // Whether the name dialog is still open: a wait for its answer ends
    // when it has gone without one.
    virtual bool listNameShown() const = 0;
    // frmMdb, modal: returns once the dialog has been unloaded.
    virtual void showMdb(MdbChooser& chooser) = 0;
};
