#pragma once

#include "render/print/PageRecorder.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace ls::test {

/// A printer that records its pages and its calls, and fails where a test asks for it. It has portrait Letter
/// paper that is printable to the edges, and its lines are 272 twips high.
class RecordingPrinter : public PageRecorder
{
public:
    explicit RecordingPrinter(const PrinterState& start = Letter(), double lineHeight = 272)
        : PageRecorder(start, lineHeight), state(start)
    {
    }

    static PrinterState Letter()
    {
        PrinterState letter;
        letter.paperSize = 1;
        letter.width = letter.scaleWidth = 12240;
        letter.height = letter.scaleHeight = 15840;
        return letter;
    }

    std::vector<std::string> names = {"Office"};
    std::string current = "Office";
    std::string fileTo;                       ///< the printer of this name asks for a file
    PrinterState state;                       ///< of the printer in use
    std::map<int, FileError> refuse;          ///< paper codes that it refuses
    std::map<int, std::pair<int, int>> sizes; ///< width and height of the available papers
    FileError failNewPage;
    FileError failEndDoc;
    FileError failColour;
    std::vector<std::string>
        log; ///< "choose Office", "paper 9", "colour", "grey", "font ...", "file ...", "end"

    std::vector<std::string> Names() override { return names; }
    std::string Current() override { return current; }
    FileError Choose(const std::string& name) override
    {
        log.push_back("choose " + name);
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            return MakeFileError(error::DeviceUnavailable);
        }
        current = name;
        return {};
    }
    bool AsksForFile() override { return !fileTo.empty() && current == fileTo; }
    void SetFile(const std::string& path, bool replace) override
    {
        log.push_back("file " + path + (replace ? " replaced" : ""));
    }
    void SetTitle(const std::string& title) override { log.push_back("title " + title); }
    FileError SetPaperSize(int code) override
    {
        log.push_back("paper " + std::to_string(code));
        if (const auto found = refuse.find(code); found != refuse.end()) {
            return found->second;
        }
        state.paperSize = code;
        if (const auto found = sizes.find(code); found != sizes.end()) {
            std::tie(state.width, state.height) = found->second;
        }
        return {};
    }
    FileError SetColour(bool colour) override
    {
        log.push_back(colour ? "colour" : "grey");
        state.colour = colour;
        return failColour;
    }
    PrinterState State() override { return state; }
    void SetFont(std::string_view family, double points) override
    {
        log.push_back("font " + std::string(family) + " " + std::to_string(static_cast<int>(points)));
        PageRecorder::SetFont(family, points);
    }
    FileError NewPage() override { return failNewPage.Ok() ? PageRecorder::NewPage() : failNewPage; }
    FileError EndDoc() override
    {
        log.push_back("end");
        return failEndDoc.Ok() ? PageRecorder::EndDoc() : failEndDoc;
    }
};

} // namespace ls::test
