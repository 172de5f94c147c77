#include "ModalAnswerer.h"

#include <QAbstractButton>
#include <QApplication>

ModalAnswerer::ModalAnswerer(QMessageBox::StandardButton button) : m_button(button)
{
    connect(&m_timer, &QTimer::timeout, this, &ModalAnswerer::poll);
    m_timer.start(5);
}

ModalAnswerer::ModalAnswerer(std::function<void(QWidget*)> action) : m_action(std::move(action))
{
    connect(&m_timer, &QTimer::timeout, this, &ModalAnswerer::poll);
    m_timer.start(5);
}

void ModalAnswerer::poll()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == m_lastSeen || !modal->isVisible())
        return;
    m_lastSeen = modal;
    ++m_count;
    if (m_action) {
        m_action(modal);
        return;
    }
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        m_title = box->windowTitle();
        m_text = box->text();
        m_icon = box->icon();
        if (QAbstractButton* button = box->button(m_button))
            button->click();
        else
            box->reject();
    }
}
