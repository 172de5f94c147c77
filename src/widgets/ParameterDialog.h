#pragma once

#include <QDialog>
#include <QString>

#include <array>
#include <set>
#include <vector>

class ColorChooser;
class QLabel;
class QPushButton;

// What the two parameter dialogs share: the buttons "Ok", "Cancel" and "Default
// values" with their handler and hints, the colour choices that fill a swatch from
// the colour chooser, the bookkeeping of refused entry fields that enables "Ok", and
// the status line while the dialog is minimised. A dialog edits a working copy in
// its controls and writes its record only in AcceptValues, on "Ok".
class ParameterDialog : public QDialog
{
    Q_OBJECT

public:
    // The three buttons, by their index in cmdCommand.
    enum Command
    {
        Ok = 0,
        Cancel = 1,
        DefaultValues = 2
    };
    static constexpr int CommandCount = 3;

    // The buttons' handler: "Ok" stores the values and closes, "Cancel" closes
    // without storing, "Default values" refills the controls only.
    void cmdCommand_Click(int Index);
    // Opens the colour chooser for colour choice Index and shows the colour it
    // returns in that choice's swatch.
    void cmdColorSelection_Click(int Index);

public slots:
    // Escape and the close box cancel, as "Cancel" does.
    void reject() override;

protected:
    ParameterDialog() = default;

    // Writes the record's values into the controls.
    virtual void ShowCurrentValues() = 0;
    // Writes the controls' values into the record.
    virtual void AcceptValues() = 0;
    // Writes the default values into the controls.
    virtual void ShowDefaultValues() = 0;

    // Makes the three buttons (not yet placed), with their clicks and hints; "Ok"
    // is the default button.
    void createCommandButtons();

    // The chooser the colour choices open.
    void useColorChooser(ColorChooser& chooser) { m_chooser = &chooser; }
    // Makes the next colour choice: its button, caption and swatch open the
    // chooser, whose colour the swatch then shows. Returns the choice's index.
    int addColorChoice(QPushButton* button, QLabel* caption, QLabel* swatch);

    // Marks an entry field valid or refused; "Ok" is enabled exactly while no field
    // is refused.
    void MarkFieldValidity(int Field, bool Valid);

    // What the status line shows while the dialog is minimised; once set, any other
    // resize centres the dialog. Without it the window manager places the dialog.
    void setMinimisedHint(const QString& hint) { m_minimisedHint = hint; }

    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

    std::array<QPushButton*, CommandCount> cmdCommand{};
    // The entry fields whose last check failed.
    std::set<int> InvalidFields;

private:
    void Form_Resize();

    ColorChooser* m_chooser = nullptr;
    std::vector<QLabel*> m_swatches;
    QString m_minimisedHint;
};
