// The one procedure through which every message and every question reaches the user.
// Bodies: message_box_qt.cpp and tests/fakes/fake_message_box.cpp (answers given in advance).
#pragma once

#include <string>

enum class Buttons_Set { Ok, Yes_No, Yes_No_Cancel, Retry_Cancel };
enum class Icon { None, Stop, Question, Exclamation, Information };
enum class Answer { Ok, Yes, No, Cancel, Retry };

inline constexpr const char* Application_Title = "Tonebench";

// Shows `text` (UTF-8; a carriage return, a line feed or both end a line) and waits for the answer while
// the program's other events go on. A box that is closed without a button answers Cancel where there is
// one, else No or Ok.
Answer Message_Box(const std::string& text, Buttons_Set buttons = Buttons_Set::Ok, Icon icon = Icon::None,
                   const std::string& title = Application_Title);
