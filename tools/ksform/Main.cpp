#include "ksform/Verbs.h"

#include "vcl/forms/StandardClasses.h"

int main(int Count, char** Arguments)
{
    vcl::RegisterStandardClasses();
    return ksform::Run({Arguments + 1, Arguments + Count});
}
