#include "ControlBinder.h"

#include "Controls.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QSlider>

namespace {

void showCommon(const Control& model, QWidget* widget)
{
    widget->setToolTip(model.toolTip());
    widget->setEnabled(model.isEnabled());
    // A widget hidden by the rules stays hidden; one shown follows its window.
    if (!model.isVisible())
        widget->setVisible(false);
    else if (widget->isHidden() && widget->parentWidget())
        widget->setVisible(true);
}

bool isFocusKey(const QKeyEvent* key)
{
    return key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
}

// The lists take no typing: neither a key nor the wheel chooses an entry of
// the closed box (Qt's arrow keys, keyboard search and wheel all do, and
// fire activated), and no character searches the open list. What passes
// are the keys that move the focus, open and close the list, and, in the
// open list, move its highlight and choose the highlighted entry with
// Return: a deliberate choice, as a click is.
class NoTyping : public QObject
{
public:
    explicit NoTyping(QComboBox* combo) : QObject(combo), m_combo(combo)
    {
        combo->installEventFilter(this);
        // Installed after the popup's own filter, so this one sees the keys
        // first.
        combo->view()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_combo)
            return closedBox(event);
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
            return openList(static_cast<QKeyEvent*>(event));
        return false;
    }

private:
    // Alt+Up is not one of them: on the closed box Qt takes it as Up.
    static bool opensOrCloses(const QKeyEvent* key)
    {
        return key->key() == Qt::Key_F4 || key->key() == Qt::Key_Space ||
               (key->key() == Qt::Key_Down && (key->modifiers() & Qt::AltModifier));
    }

    bool closedBox(QEvent* event) const
    {
        if (event->type() == QEvent::Wheel)
            return true;
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool passes = isFocusKey(key) || opensOrCloses(key) || key->key() == Qt::Key_Escape ||
                            key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        return !passes;
    }

    static bool movesHighlight(const QKeyEvent* key)
    {
        static const QList<int> keys = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                        Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
        return keys.contains(key->key()) && !(key->modifiers() & Qt::AltModifier);
    }

    // Escape, F4 and Alt+Down close the list as Qt does, choosing nothing;
    // Return and Enter choose the highlighted entry. Every other key,
    // keyboard search included, is dropped.
    bool openList(QKeyEvent* key) const
    {
        const bool passes = key->key() == Qt::Key_Escape || opensOrCloses(key) ||
                            key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter ||
                            movesHighlight(key);
        return !passes;
    }

    QComboBox* m_combo;
};

// The slider's Click: a press on it, on the handle or the track (which Qt
// turns into a page step without sliderPressed), the wheel, and a key other
// than the focus keys. The value change that follows is its Change.
class SliderClick : public QObject
{
public:
    SliderClick(Control& model, QObject* parent) : QObject(parent), m_model(model) {}
    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            m_model.click();
            break;
        case QEvent::KeyPress:
            if (!isFocusKey(static_cast<QKeyEvent*>(event)))
                m_model.click();
            break;
        default:
            break;
        }
        return false;
    }

private:
    Control& m_model;
};

// The application's style, except that a combo box opens its list as a
// list of maxVisibleItems rows rather than as a menu.
class ListPopupStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        if (hint == SH_ComboBox_Popup)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

// One for all combo boxes, made with the first and owned by the application.
QStyle* listPopupStyle()
{
    static QPointer<QStyle> style;
    if (!style) {
        style = new ListPopupStyle;
        style->setParent(qApp);
    }
    return style;
}

} // namespace

namespace ControlBinder {

void bind(Control& model, QAbstractButton* button)
{
    button->setObjectName(model.name());
    auto show = [&model, button] {
        button->setText(model.text());
        showCommon(model, button);
    };
    show();
    QObject::connect(&model, &Control::viewChanged, button, show);
    QObject::connect(button, &QAbstractButton::clicked, &model, [&model] { model.click(); });
}

void bind(Control& model, QAction* action)
{
    action->setObjectName(model.name());
    action->setCheckable(true);
    auto show = [&model, action] {
        action->setText(model.text());
        action->setChecked(model.isChecked());
        action->setEnabled(model.isEnabled());
        action->setVisible(model.isVisible());
    };
    show();
    QObject::connect(&model, &Control::viewChanged, action, show);
    QObject::connect(action, &QAction::triggered, &model, [&model, show] {
        model.click();
        show(); // the rules decide the check, not the toggle of the action
    });
}

void bind(Control& model, QCheckBox* box)
{
    box->setObjectName(model.name());
    auto show = [&model, box] {
        const QSignalBlocker block(box);
        box->setText(model.text());
        box->setChecked(model.isChecked());
        showCommon(model, box);
    };
    show();
    QObject::connect(&model, &Control::viewChanged, box, show);
    QObject::connect(box, &QCheckBox::clicked, &model, [&model](bool checked) {
        model.setChecked(checked);
        model.click();
    });
}

void bind(ListControl& model, QComboBox* combo)
{
    combo->setObjectName(model.name());
    combo->setEditable(false);
    // Fusion and the other styles that show the list as a menu ignore
    // maxVisibleItems and open a column the height of the screen.
    combo->setStyle(listPopupStyle());
    new NoTyping(combo);
    auto showItems = [&model, combo] {
        const QSignalBlocker block(combo);
        combo->clear();
        combo->addItems(model.items());
    };
    auto show = [&model, combo] {
        const QSignalBlocker block(combo);
        combo->setCurrentIndex(model.listIndex());
        // A text that is no entry of the list shows as the box's placeholder.
        combo->setPlaceholderText(model.listIndex() < 0 ? model.text() : QString());
        showCommon(model, combo);
    };
    showItems();
    show();
    QObject::connect(&model, &ListControl::itemsChanged, combo, [showItems, show] {
        showItems();
        show();
    });
    QObject::connect(&model, &ListControl::itemAdded, combo, [&model, combo, show](int index) {
        {
            const QSignalBlocker block(combo);
            combo->insertItem(index, model.item(index));
        }
        show();
    });
    QObject::connect(&model, &Control::viewChanged, combo, show);
    QObject::connect(combo, qOverload<int>(&QComboBox::activated), &model,
                     [&model](int index) { model.userSelect(index); });
}

void bind(ListControl& model, QListWidget* list)
{
    list->setObjectName(model.name());
    auto showItems = [&model, list] {
        const QSignalBlocker block(list);
        list->clear();
        list->addItems(model.items());
    };
    auto show = [&model, list] {
        const QSignalBlocker block(list);
        list->setCurrentRow(model.listIndex());
        showCommon(model, list);
    };
    showItems();
    show();
    QObject::connect(&model, &ListControl::itemsChanged, list, [showItems, show] {
        showItems();
        show();
    });
    QObject::connect(&model, &ListControl::itemAdded, list, [&model, list, show](int index) {
        {
            const QSignalBlocker block(list);
            list->insertItem(index, model.item(index));
        }
        show();
    });
    QObject::connect(&model, &Control::viewChanged, list, show);
    QObject::connect(list, &QListWidget::itemClicked, &model,
                     [&model, list](QListWidgetItem* item) { model.userSelect(list->row(item)); });
}

void bind(SliderControl& model, QSlider* slider)
{
    slider->setObjectName(model.name());
    {
        const QSignalBlocker block(slider);
        slider->setRange(model.minimum(), model.maximum());
    }
    auto show = [&model, slider] {
        const QSignalBlocker block(slider);
        slider->setRange(model.minimum(), model.maximum());
        slider->setValue(model.value());
        showCommon(model, slider);
    };
    show();
    QObject::connect(&model, &Control::viewChanged, slider, show);
    QObject::connect(slider, &QSlider::valueChanged, &model, [&model](int value) {
        try {
            model.setValue(value);
        } catch (...) {
        }
    });
    slider->installEventFilter(new SliderClick(model, slider));
}

void bind(Control& model, QLineEdit* edit)
{
    edit->setObjectName(model.name());
    auto show = [&model, edit] {
        if (edit->text() != model.text()) {
            const QSignalBlocker block(edit);
            edit->setText(model.text());
            edit->setCursorPosition(0);
        }
        showCommon(model, edit);
    };
    show();
    QObject::connect(&model, &Control::viewChanged, edit, show);
    QObject::connect(edit, &QLineEdit::textEdited, &model,
                     [&model](const QString& text) { model.setText(text); });
}

void bind(Control& model, QLabel* label)
{
    label->setObjectName(model.name());
    auto show = [&model, label] {
        label->setText(model.text());
        showCommon(model, label);
    };
    show();
    QObject::connect(&model, &Control::viewChanged, label, show);
}

void bindCaption(Control& model, QWidget* window)
{
    auto show = [&model, window] { window->setWindowTitle(model.text()); };
    show();
    QObject::connect(&model, &Control::viewChanged, window, show);
}

} // namespace ControlBinder
