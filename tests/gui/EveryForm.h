#pragma once

#include "gui/MainFormFixture.h"

#include <functional>

namespace ls {

/// Opens every window of the program with typical content, for tests that apply to all windows.
struct EveryForm : MainFormFixture
{
    using Look = std::function<void(const std::string& name, QWidget& form)>;

    /// Starts on a topic with references both ways and an advisor, in a book that names its web site.
    void StartOnFullBook();

    /// Opens the windows and boxes one after the other, calls `look` for each, and closes it.
    void ForEach(const Look& look);

private:
    void ForEachEditor(const Look& look);
    void ForEachFileForm(const Look& look);
    void ForEachView(const Look& look);
    void ForEachBox(const Look& look);
    void LookAtAdvisor(const Look& look);
    static void Show(const Look& look, const std::string& name, QWidget& form);
};

} // namespace ls
