#pragma once

#include <QString>

// The language of the program's texts, chosen on the command line.
class ProgramLanguage
{
public:
    // Loads the catalogue of language ("el" or "en") built into the program, and
    // the toolkit's own catalogue for its standard dialogs when the system has it.
    // An empty language loads nothing: the program's own texts show. False when
    // the program's catalogue could not be loaded.
    static bool load(const QString& language);
};
