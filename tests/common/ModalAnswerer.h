#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

// Answers the modal windows a test provokes: every modal window that comes up while
// this lives is handed to the action (a message box is recorded and answered with
// the given button).
class ModalAnswerer : public QObject
{
    Q_OBJECT

public:
    // Answers message boxes with the button.
    explicit ModalAnswerer(QMessageBox::StandardButton button = QMessageBox::Ok);
    // Hands any modal window to the action, which must close it.
    explicit ModalAnswerer(std::function<void(QWidget*)> action);

    // How many modal windows came up, and the last message box's contents.
    int count() const { return m_count; }
    QString title() const { return m_title; }
    QString text() const { return m_text; }
    QMessageBox::Icon icon() const { return m_icon; }

private:
    void poll();

    QTimer m_timer;
    std::function<void(QWidget*)> m_action;
    QMessageBox::StandardButton m_button = QMessageBox::Ok;
    QWidget* m_lastSeen = nullptr;
    int m_count = 0;
    QString m_title;
    QString m_text;
    QMessageBox::Icon m_icon = QMessageBox::NoIcon;
};
