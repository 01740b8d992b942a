#pragma once

#include "gui/MainFormFixture.h"

#include <functional>

namespace ls {

/// Every window of the program, filled as a user meets it, for what all of them must keep.
struct EveryForm : MainFormFixture
{
    using Look = std::function<void(const std::string& name, QWidget& form)>;

    /// A topic with references both ways and an advisor, in a book that names its web site.
    void StartOnFullBook();

    /// Opens one window after the other, and the boxes too, and closes each when it was looked at.
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
