#pragma once

namespace ls {

/// Where the main window's controls stand, in its own units. Only what resizing reads is listed.
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

/// Where the controls go.
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

/// How the main window lays its controls out at a size. It remembers the designed positions, each rounded to
/// a whole number, and never lays out smaller than designed: a smaller window cuts controls off.
class MainLayout
{
public:
    explicit MainLayout(const MainGeometry& designed);

    /// The positions in a form of that inner size. The pane's left and top, the scroll bar's width and the
    /// list's left stay as designed, but unrounded.
    [[nodiscard]] MainPositions Form_Resize(double innerWidth, double innerHeight) const;

private:
    void LayOutAcross(double innerWidth, MainPositions& positions) const;
    void LayOutDown(double innerHeight, MainPositions& positions) const;

    MainGeometry m_live;
    MainGeometry m_design;
};

} // namespace ls
