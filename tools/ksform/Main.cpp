#include "ksform/Verbs.h"
#include "package/Package.h"
#include "vcl/forms/StandardClasses.h"

int main(int Count, char** Arguments)
{
    vcl::RegisterStandardClasses();
    RegisterKSSuite();
    return ksform::Run({Arguments + 1, Arguments + Count});
}
