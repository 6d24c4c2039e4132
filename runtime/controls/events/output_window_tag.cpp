#include <tetrad/events/output_window_tag.h>

namespace tetrad {

namespace {

Tag outputWindowTag = 0;

} // namespace

void CUI_OutputWindowSetTag(Tag tag)
{
    outputWindowTag = tagIdentity(tag);
}

Tag CUI_OutputWindowTag()
{
    return outputWindowTag;
}

} // namespace tetrad
