// Names of files and folders as the toolkit shows them. On the disk a name is bytes and may be no text at
// all.
#pragma once

#include <QString>
#include <string>

// One line, whatever the bytes are: UTF-8 where they are that, else by the letters of Windows-1252. What is
// no letter shows as a blank.
QString Name_Text(const std::string& name);
