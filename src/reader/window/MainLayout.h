#pragma once

namespace ls {

/// The places of the main window's controls, in its own units; only those that resizing reads.
struct MainGeometry
{
    double innerWidth = 0; ///< of the form, without frame and menus
    double innerHeight = 0;
    double picLeft = 0;
    double picTop = 0;
    double picWidth = 0;
    double picHeight = 0;
    double scrollWidth = 0;
    double listLeft = 0;
    double listWidth = 0;
    double goToLeft = 0;
    double backLeft = 0;
    double nextLeft = 0;
    double doneTop = 0;
};

/// The places that resizing gives to the controls.
struct MainPositions
{
    double picWidth = 0;
    double picHeight = 0;
    double scrollLeft = 0;
    double scrollHeight = 0;
    double listWidth = 0;
    double goToLeft = 0;
    double backLeft = 0;
    double nextLeft = 0;
    double buttonTop = 0; ///< of the row under the pane

    friend bool operator==(const MainPositions&, const MainPositions&) = default;
};

/// Lays out the main window's controls for a size. Remembers the designed places, each rounded to a whole
/// number. A window smaller than designed gets the designed layout and cuts controls off.
class MainLayout
{
public:
    explicit MainLayout(const MainGeometry& designed);

    /// The places in a form of that inner size. Four values stay as designed and unrounded: the pane's left
    /// and top, the scroll bar's width and the list's left.
    [[nodiscard]] MainPositions Form_Resize(double innerWidth, double innerHeight) const;

private:
    void LayOutAcross(double innerWidth, MainPositions& positions) const;
    void LayOutDown(double innerHeight, MainPositions& positions) const;

    MainGeometry m_live;
    MainGeometry m_design;
};

} // namespace ls
