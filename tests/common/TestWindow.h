#pragma once

#include "widgets/WindowRelease.h"

#include <QPointer>

#include <functional>
#include <utility>

// A window that a test creates itself, handing it what it works on: loaded on first
// use and counted as unloaded once it releases itself, as the program holds its own.
template <class T>
class TestWindow
{
public:
    explicit TestWindow(std::function<T*()> create) : m_create(std::move(create)) {}

    bool loaded() const { return m_window && !IsReleased(m_window); }

    T& get()
    {
        if (!loaded())
            m_window = m_create();
        return *m_window;
    }

    void unload()
    {
        if (loaded())
            CloseAndRelease(m_window);
    }

private:
    std::function<T*()> m_create;
    QPointer<T> m_window;
};
