#pragma once

class Control;
class ListControl;
class SliderControl;
class QAbstractButton;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSlider;
class QWidget;

// Binds widgets to the control models of the rules: the widget shows the
// model's state, and the user's actions on the widget go to the model as
// its Click and Change events. Widgets take the model's name as objectName.
namespace ControlBinder {
void bind(Control& model, QAbstractButton* button);
void bind(Control& model, QAction* action);
// The box's tick is the model's check; a click sets it, then fires Click.
void bind(Control& model, QCheckBox* box);
void bind(ListControl& model, QComboBox* combo);
// A box that lists the model's entries and also takes a typed text, which
// goes to the model when the typing is finished. The wheel passing over it
// changes nothing.
void bindEditable(ListControl& model, QComboBox* combo);
// A click on an entry of the list is the user's choice of it.
void bind(ListControl& model, QListWidget* list);
void bind(SliderControl& model, QSlider* slider);
void bind(Control& model, QLineEdit* edit);
void bind(Control& model, QLabel* label);
// The window's caption follows the model's text.
void bindCaption(Control& model, QWidget* window);
} // namespace ControlBinder
