// Between the toolkit's text and the ANSI (Windows-1252) bytes of a tone's name.
#pragma once

#include <QString>
#include <string>

// Codes below 32, and the five that the set leaves free, become blanks.
QString From_ANSI(const std::string& text);

// A character that the set does not have becomes a question mark.
std::string To_ANSI(const QString& text);
