#include "support/PropertyLoop.h"

#include "SampleComponents.h"

namespace vcl::tests
{

TEST(SampleProperties, AreSetReadStoredAndRefusedLikeTheirTableSays)
{
    RegisterSampleClasses();
    for (const TClass* Class : RegisteredClasses()) {
        // A frame makes its own children and is written inline, below a form.
        if (*Class == TSampleFrame::StaticClass())
            continue;
        TPropertyLoopOptions Options;
        if (std::string_view(Class->Name) == "TSampleDefaults")
            Options.NotStreamed = {"StoreFlag"};
        CheckProperties(
            [Class] { return std::unique_ptr<TComponent>(static_cast<TComponent*>(Class->Create(nullptr))); },
            Options);
    }
}

} // namespace vcl::tests
