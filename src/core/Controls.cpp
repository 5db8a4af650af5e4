#include "Controls.h"

#include "VbRuntime.h"

#include <algorithm>

Control::Control(const QString& name, QObject* parent) : QObject(parent)
{
    setObjectName(name);
}

void Control::setText(const QString& text)
{
    if (text == m_text && text.isNull() == m_text.isNull())
        return;
    const bool differs = text != m_text;
    m_text = text;
    textSet();
    emit viewChanged();
    if (differs)
        emit changed();
}

void Control::setTextSilently(const QString& text)
{
    m_text = text;
    emit viewChanged();
}

void Control::setToolTip(const QString& tip)
{
    m_toolTip = tip;
    emit viewChanged();
}

void Control::setVisible(bool visible)
{
    m_visible = visible;
    emit viewChanged();
}

void Control::setEnabled(bool enabled)
{
    m_enabled = enabled;
    emit viewChanged();
}

void Control::setChecked(bool checked)
{
    m_checked = checked;
    emit viewChanged();
}

void ListControl::setListIndex(int index)
{
    if (index < -1 || index >= m_items.size())
        throw VbError(VbError::InvalidPropertyValue,
                      QStringLiteral("Invalid list index %1 in %2").arg(index).arg(name()));
    m_index = index;
    setTextSilently(index >= 0 ? m_items.at(index) : QString(""));
}

void ListControl::addItem(const QString& item)
{
    m_items.append(item);
    emit itemAdded(m_items.size() - 1);
    if (m_index < 0 && !text().isEmpty())
        matchIndex();
}

void ListControl::removeItem(int index)
{
    if (index < 0 || index >= m_items.size())
        throw VbError(VbError::InvalidPropertyValue,
                      QStringLiteral("Invalid list index %1 in %2").arg(index).arg(name()));
    m_items.removeAt(index);
    if (index == m_index)
        m_index = -1;
    else if (index < m_index)
        --m_index;
    emit itemsChanged();
    setTextSilently(m_index >= 0 ? m_items.at(m_index) : QString(""));
}

void ListControl::clear()
{
    m_items.clear();
    m_index = -1;
    emit itemsChanged();
    setText(QString(""));
}

void ListControl::userSelect(int index)
{
    if (index < 0 || index >= m_items.size())
        return;
    m_index = index;
    setTextSilently(m_items.at(index));
    emit clicked();
}

void ListControl::matchIndex()
{
    m_index = m_items.indexOf(text());
    if (m_index < 0) {
        for (int i = 0; i < m_items.size(); ++i) {
            if (m_items.at(i).compare(text(), Qt::CaseInsensitive) == 0) {
                m_index = i;
                break;
            }
        }
    }
}

SliderControl::SliderControl(const QString& name, int min, int max, QObject* parent)
    : Control(name, parent), m_min(min), m_max(max), m_value(min)
{
}

void SliderControl::setMaximum(int max)
{
    m_max = std::max(max, m_min);
    emit viewChanged();
    if (m_value > m_max)
        setValue(m_max);
}

void SliderControl::setValue(int value)
{
    if (value < m_min || value > m_max)
        throw VbError(VbError::InvalidPropertyValue,
                      QStringLiteral("Invalid value %1 for %2").arg(value).arg(name()));
    if (value == m_value)
        return;
    m_value = value;
    emit viewChanged();
    emit changed();
}

void SliderControl::setMinimum(int min)
{
    m_min = min;
    if (m_max < m_min)
        m_max = m_min;
    const bool raised = m_value < m_min;
    if (raised)
        m_value = m_min;
    emit viewChanged();
    if (raised)
        emit changed();
}
