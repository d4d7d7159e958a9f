#include "ksform/Verbs.h"

#ifdef KS_STANDARD_CLASSES
#include "vcl/forms/StandardClasses.h"
#endif

int main(int Count, char** Arguments)
{
#ifdef KS_STANDARD_CLASSES
    vcl::RegisterStandardClasses();
#endif
    return ksform::Run({Arguments + 1, Arguments + Count});
}
