// The guide's pages as tests read them: text, tables, words.
#pragma once

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/text.h"

namespace fs = std::filesystem;

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

inline const fs::path Root = SOURCE_DIR;
inline const fs::path Guide = Root / "docs/guide";

inline std::string Text_Of(const fs::path& path) {
    return File_Read_Whole(path.string()).value_or("");
}

inline std::string Page(const std::string& name) {
    return Text_Of(Guide / name);
}

inline std::vector<std::string> Lines_Of(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char letter : text) {
        if (letter == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += letter;
        }
    }
    return lines;
}

// The cells of a row of a table; none for any other line.
inline Row Cells(const std::string& line) {
    Row cells;
    if (!line.starts_with("|")) return cells;
    for (std::size_t at = 1; at < line.size();) {
        const std::size_t end = std::min(line.find('|', at), line.size());
        cells.emplace_back(Trimmed(std::string_view(line).substr(at, end - at)));
        at = end + 1;
    }
    return cells;
}

// The rows of the table with this heading, as many columns of each as are asked for.
inline Rows Table(const std::string& page, const std::string& heading, std::size_t columns) {
    Rows rows;
    bool inside = false;
    for (const std::string& line : Lines_Of(Page(page))) {
        Row cells = Cells(line);
        if (line == heading) {
            inside = true;
        } else if (cells.empty()) {
            inside = false;
        } else if (inside && !cells.front().starts_with("---")) {
            cells.resize(columns);
            rows.push_back(cells);
        }
    }
    return rows;
}

inline std::string Joined(const Row& words) {
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
    return text;
}

inline std::string Without_Marks(std::string caption) {
    std::erase(caption, '&');
    return std::string(Trimmed(caption));
}

// Blanks and line ends count as one blank, so that a sentence may be broken anywhere.
inline std::string Flat(const std::string& text) {
    std::string flat;
    for (const char letter : text) {
        const bool blank = std::isspace(static_cast<unsigned char>(letter)) != 0;
        if (!blank) flat += letter;
        if (blank && !flat.empty() && flat.back() != ' ') flat += ' ';
    }
    return flat;
}
