#include "planner/FormTexts.h"

#include "vcl/classes/Stream.h"
#include "vcl/forms/LoadForm.h"

namespace planner
{

void ReadForm(vcl::TCustomForm& Form, std::string_view Name)
{
    const std::string_view Text = FormText(Name);
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
    Stream.SetPosition(0);
    vcl::LoadForm(Form, Stream);
}

} // namespace planner
