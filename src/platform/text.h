// Text as the rules treat it: bytes, with the few operations that they need.
#pragma once

#include <string>
#include <string_view>

// Without the blanks (and tabs) at both ends, or at the right end only.
std::string_view Trimmed(std::string_view text);
std::string_view Right_Trimmed(std::string_view text);

// Equal without regard to the case of the letters A to Z.
bool Same_Text(std::string_view left, std::string_view right);

// The letters a to z as capitals, or the other way; all other bytes stay, so UTF-8 stays whole.
std::string Upper_Text(std::string_view text);
std::string Lower_Text(std::string_view text);

// The part before the first zero character.
std::string_view Cut_At_Zero(std::string_view text);

// At most `bytes` bytes, never ending inside a UTF-8 character.
std::string_view Cut_To_Bytes(std::string_view text, std::size_t bytes);

// The number at the start of a text, blanks before it allowed: "12", " -3.5x" and "1e2" read 12, -3.5 and
// 100. Anything else reads 0. The decimal point is "." whatever the user's language.
double Number_At_Start(std::string_view text);

// A number in plain decimal form with the seven digits that single precision is good for: "541",
// "10.66667", "-0.5". No exponent, no zeros behind the last digit of a fraction.
std::string Plain_Number(float number);
