#pragma once

#include <QPointer>
#include <QWidget>

// Every window of the program exists once, as a global instance created and loaded
// on first use (its constructor is its Form_Load) and released when unloaded.

// The slot that holds the one instance of a window class.
template <class T>
QPointer<T>& FormSlot()
{
    static QPointer<T> slot;
    return slot;
}

// The one instance of a window class, loading it if it is not loaded.
template <class T>
T& Form()
{
    QPointer<T>& slot = FormSlot<T>();
    if (!slot)
        slot = new T();
    return *slot;
}

// Whether the window is loaded.
template <class T>
bool IsLoaded()
{
    return !FormSlot<T>().isNull();
}

// Closes a window (its unload handling runs and may refuse) and schedules its
// release, with the child-window frame that holds it. Returns true when it closed.
bool CloseAndRelease(QWidget* form);

// Unloads the window if it is loaded: the next Form<T>() loads a fresh one.
template <class T>
void Unload()
{
    QPointer<T>& slot = FormSlot<T>();
    if (slot && CloseAndRelease(slot))
        slot = nullptr;
}
