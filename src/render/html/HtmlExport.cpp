#include "render/html/HtmlExport.h"

#include "base/Text.h"
#include "render/html/HtmlOutput.h"
#include "render/text/ListIndent.h"
#include "render/text/WrapSegment.h"

#include <algorithm>

namespace ls {

namespace {

constexpr int ExportWidth = 70;

bool IsHeading(std::string_view segment)
{
    return segment.size() >= 4 && BeginsUpper(segment, "<H") && segment[2] >= '1' && segment[2] <= '4' &&
           segment[3] == '>';
}

// The tags of a list.
struct ListTags
{
    std::string_view open;
    std::string_view close;
};

ListTags TagsOf(char marker)
{
    if (marker == '-') {
        return {"<UL>", "</UL>"};
    }
    if (marker >= '0' && marker <= '9') {
        return {"<OL>", "</OL>"};
    }
    if (marker >= 'A' && marker <= 'Z') {
        return {"<OL TYPE=A>", "</OL>"};
    }
    return {"<OL TYPE=a>", "</OL>"};
}

} // namespace

void HtmlExport::Begin(std::string_view title)
{
    m_output->Line({"<HTML>"});
    m_output->Line({"<HEAD>"});
    m_output->Line({"<TITLE>", title, "</TITLE>"});
    m_output->Line({"</HEAD>"});
    m_output->Line({"<BODY>"});
}

void HtmlExport::AddLine(std::string_view line)
{
    const int hang = ListIndent(line);
    bool continuation = false;
    LineRemainder rest(line);
    do {
        WrapSegment(rest, ExportWidth, 0, m_segment);
        const bool last = rest.Empty();
        if (m_segment.empty()) {
            m_output->Line({});
            return;
        }
        if (IsHeading(m_segment)) {
            CloseList();
            m_output->Line({m_segment});
            return; // Intended: a heading that does not fit a line is cut
        }
        if (continuation) {
            m_output->Line({m_segment, !last ? "" : hang == 0 ? "</P>" : "</LI>"});
        } else {
            AddFirst(m_segment, hang, last);
        }
        continuation = true;
    } while (!rest.Empty());
}

void HtmlExport::AddFirst(std::string_view segment, int hang, bool last)
{
    if (hang == 0) {
        CloseList();
        m_output->Line({"<P>", segment, last ? "</P>" : ""});
        return;
    }
    if (!m_inList) {
        OpenList(segment);
    }
    // Intended: after a leading tag, as in "<B>1. First", the tag is cut and the number stays.
    segment.remove_prefix(std::min(segment.size(), static_cast<std::size_t>(hang)));
    m_output->Line({"<LI>", segment, last ? "</LI>" : ""});
}

void HtmlExport::OpenList(std::string_view segment)
{
    const std::string_view text = Trim(segment);
    const ListTags tags = TagsOf(text.empty() ? ' ' : text.front());
    m_output->Line({tags.open});
    m_listClose = tags.close;
    m_inList = true;
}

void HtmlExport::CloseList()
{
    if (m_inList) {
        m_output->Line({m_listClose});
        m_inList = false;
    }
}

void HtmlExport::End()
{
    m_output->Line({"</BODY>"});
    m_output->Line({"</HTML>"});
}

} // namespace ls
