#pragma once

namespace ls {

/// How topics are printed: what the print dialog was told, and what follows for the page. Kept from one print
/// to the next while the program runs.
struct PrintSettings
{
    bool PrintConfirmed = false; ///< the print dialog was left by its print button
    bool PrintInColour = false;
    int CharsPerInch = 10;    ///< 10 (Pica) or 12 (Elite)
    int PrintableWidth = 0;   ///< of the page inside the margins, in twips
    int PrintableHeight = 0;  ///< the same
    int CharsPerLine = 0;     ///< characters of a printed line
    int LinesPerPage = 0;     ///< printed lines of a page
    int LeftMarginChars = 0;  ///< the left margin, in characters
    int TopMarginLines = 0;   ///< the top margin, in empty lines
    bool ColourKnown = false; ///< until the user has chosen once, the printer's own mode is proposed
};

} // namespace ls
