#pragma once

#include "widgets/WindowRelease.h"

#include <QPointer>
#include <QWidget>

class MDIMain;
class frmIdentify;
class frmIntroduction;
class frmMacroView;
class frmMicroView;

// Every window of the program exists once, as an instance the application creates
// and loads on first use (its constructor is its Form_Load), handing it the records
// it works on, and that goes when the window unloads itself or is unloaded here.

// The creation of each window, with what it is handed.
MDIMain* NewForm(MDIMain*);
frmIdentify* NewForm(frmIdentify*);
frmIntroduction* NewForm(frmIntroduction*);
frmMacroView* NewForm(frmMacroView*);
frmMicroView* NewForm(frmMicroView*);

// The slot that holds the one instance of a window class.
template <class T>
QPointer<T>& FormSlot()
{
    static QPointer<T> slot;
    return slot;
}

// Whether the window is loaded: created and not yet released.
template <class T>
bool IsLoaded()
{
    const QPointer<T>& slot = FormSlot<T>();
    return slot && !IsReleased(slot);
}

// The one instance of a window class, loading it if it is not loaded.
template <class T>
T& Form()
{
    QPointer<T>& slot = FormSlot<T>();
    if (!IsLoaded<T>())
        slot = NewForm(static_cast<T*>(nullptr));
    return *slot;
}

// Unloads the window if it is loaded: the next Form<T>() loads a fresh one.
template <class T>
void Unload()
{
    QPointer<T>& slot = FormSlot<T>();
    if (IsLoaded<T>() && CloseAndRelease(slot))
        slot = nullptr;
}
