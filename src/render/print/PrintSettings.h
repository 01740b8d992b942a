#pragma once

namespace ls {

/// How topics are printed: the choices of the print dialog, and the page layout that follows from them. They
/// last as long as the program runs.
struct PrintSettings
{
    bool PrintConfirmed = false; ///< the user left the print dialog with its print button
    bool PrintInColour = false;
    int CharsPerInch = 10;    ///< 10 (Pica) or 12 (Elite)
    int PrintableWidth = 0;   ///< of the page inside the margins, in twips
    int PrintableHeight = 0;  ///< of the page inside the margins, in twips
    int CharsPerLine = 0;     ///< characters of a printed line
    int LinesPerPage = 0;     ///< printed lines of a page
    int LeftMarginChars = 0;  ///< the left margin, in characters
    int TopMarginLines = 0;   ///< the top margin, in empty lines
    bool ColourKnown = false; ///< the user has chosen once; until then the printer's own mode is proposed
};

} // namespace ls
