#pragma once

#include <fstream>
#include <string>
#include <vector>

/// The lines of a document's code blocks in this language, in order.
inline std::vector<std::string> LinesOfBlocks(const std::string& path, const std::string& language)
{
    std::ifstream document(path);
    std::vector<std::string> lines;
    bool isInside = false;
    for (std::string line; std::getline(document, line);)
    {
        if (line.rfind("```", 0) == 0)
            isInside = !isInside && line == "```" + language;
        else if (isInside)
            lines.push_back(line);
    }
    return lines;
}

/// Lines as one text.
inline std::string JoinedLines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}
