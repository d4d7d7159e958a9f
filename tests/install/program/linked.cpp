#include <cstdio>
#include <memory>

#include <KSTimeView/KSTimeView.h>

int main()
{
    const std::unique_ptr<TKSTimeView> View(vcl::New<TKSTimeView>(nullptr));
    View->SetDaysCount(7);
    std::printf("%s shows %d days\n", View->ClassName().c_str(), View->GetDaysCount());
    return View->GetDaysCount() == 7 ? 0 : 1;
}
