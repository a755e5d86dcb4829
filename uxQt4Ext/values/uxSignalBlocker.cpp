#include "uxSignalBlocker.h"

#include <algorithm>

uxSignalBlocker::uxSignalBlocker() : QObject(nullptr) {}

uxSignalBlocker::uxSignalBlocker(QObject* o) : QObject(nullptr) { block(o); }

uxSignalBlocker::uxSignalBlocker(std::initializer_list<QObject*> objects) : QObject(nullptr)
{
    for (QObject* o : objects)
        block(o);
}

uxSignalBlocker::uxSignalBlocker(const std::vector<QObject*>& objects) : QObject(nullptr)
{
    for (QObject* o : objects)
        block(o);
}

uxSignalBlocker::uxSignalBlocker(uxSignalBlocker& other) : QObject(nullptr) { move(other); }

uxSignalBlocker::~uxSignalBlocker()
{
    for (const auto& entry : m_entries) {
        if (entry.first)
            entry.first->blockSignals(entry.second);
    }
}

uxSignalBlocker& uxSignalBlocker::operator=(uxSignalBlocker& other)
{
    move(other);
    return *this;
}

void uxSignalBlocker::move(uxSignalBlocker& other)
{
    if (&other == this)
        return;
    m_entries.insert(m_entries.begin(), other.m_entries.begin(), other.m_entries.end());
    other.m_entries.clear();
}

uxSignalBlocker& uxSignalBlocker::block(QObject* o)
{
    if (o)
        m_entries.emplace_back(o, o->blockSignals(true));
    return *this;
}

bool uxSignalBlocker::unblock(QObject* o)
{
    if (!o)
        return false;
    const auto it = std::find_if(m_entries.begin(), m_entries.end(), [o](const auto& e) { return e.first == o; });
    if (it == m_entries.end())
        return false;
    o->blockSignals(it->second);
    m_entries.erase(it);
    return true;
}

bool uxSignalBlocker::isAssigned(QObject* o) const
{
    return o && std::any_of(m_entries.begin(), m_entries.end(), [o](const auto& e) { return e.first == o; });
}
