// ksform with the sample classes instead of the controls.

#include "SampleComponents.h"
#include "ksform/Verbs.h"

int main(int Count, char** Arguments)
{
    vcl::tests::RegisterSampleClasses();
    return ksform::Run({Arguments + 1, Arguments + Count});
}
