#pragma once

#include <QByteArray>
#include <QSet>

namespace uxLiveObjectsDetail {

/// The address a "%p" payload names, or 0 when the bytes are not exactly one
/// printed address (empty, truncated, signed, padded, trailing bytes, too long).
quintptr parseAddress(const QByteArray& data);

/// @p object printed with "%p", as the drag payloads carry it.
QByteArray printAddress(const void* object);

} // namespace uxLiveObjectsDetail

/**
 * Registry of the live instances of one class, for the in-process drag
 * payloads that carry an object's address. A payload may come from another
 * process or be forged, so an address is only ever turned back into an object
 * when an instance of T registered it and has not yet unregistered.
 * @code
 * Module::Module() { uxLiveObjects<Module>::add(this); }
 * Module::~Module() { uxLiveObjects<Module>::remove(this); }
 * Module* dropped = uxLiveObjects<Module>::fromPayload(mime->data(format)); // null unless alive
 * @endcode
 * GUI thread only, like the widgets that use it.
 */
template<typename T>
class uxLiveObjects
{
public:
    static void add(T* object)
    {
        if (object)
            instances().insert(object);
    }

    static void remove(T* object) { instances().remove(object); }

    static bool isAlive(const void* address) { return address && instances().contains(address); }

    static QByteArray payload(const T* object) { return uxLiveObjectsDetail::printAddress(object); }

    static T* fromPayload(const QByteArray& data)
    {
        const void* address = reinterpret_cast<const void*>(uxLiveObjectsDetail::parseAddress(data));
        // Only after the lookup has proven it names a T is the address treated as one.
        return isAlive(address) ? static_cast<T*>(const_cast<void*>(address)) : nullptr;
    }

private:
    static QSet<const void*>& instances()
    {
        static QSet<const void*> live;
        return live;
    }
};
