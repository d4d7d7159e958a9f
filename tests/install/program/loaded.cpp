#include <cstdio>
#include <memory>

#include <vcl/forms/Form.h>
#include <vcl/forms/LoadForm.h>
#include <vcl/forms/Package.h>

int main()
{
    vcl::LoadPackage("KSSuite");
    const std::unique_ptr<vcl::TForm> Form(vcl::New<vcl::TForm>(nullptr));
    vcl::LoadForm(*Form, "loaded.dfm");
    const vcl::TComponent* View = Form->FindComponent("View");
    std::printf("View is a %s\n", View ? View->ClassName().c_str() : "component that is missing");
    return View && View->ClassName() == "TKSTimeView" ? 0 : 1;
}
