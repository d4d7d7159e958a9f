#pragma once

#include <memory>
#include <vector>

#include "KSTimeView/KSTimeView.h"
#include "planner/Options.h"
#include "planner/Span.h"
#include "planner/State.h"
#include "planner/calendar/CalendarSet.h"
#include "vcl/controls/Label.h"
#include "vcl/controls/Menu.h"
#include "vcl/controls/SpeedButton.h"
#include "vcl/controls/StatusBar.h"
#include "vcl/forms/FileDialog.h"
#include "vcl/forms/Form.h"

namespace planner
{

/// The planner's window. Its looks come from planner.dfm; this class shows calendars in it.
class TPlannerForm : public vcl::TForm
{
    VCL_CLASS
public:
    explicit TPlannerForm(vcl::TComponent* Owner);
    ~TPlannerForm() override;

    /// Applies what was remembered and, above that, what the command line asks for.
    void Start(const TState& State, const TOptions& Options);
    TState CurrentState() const;

    /// Shows these calendars in place of what was shown. When one cannot be read the user is told, what was
    /// shown stays, and false comes back.
    bool OpenFiles(const std::vector<std::string>& Files);
    void Show(const TDaySpan& Span);
    const TDaySpan& GetSpan() const { return FSpan; }
    TKSTimeView* GetTimeView() const { return FTimeView; }

    // Handlers that the form file names
    void OpenClick(vcl::TObject* Sender);
    void AddClick(vcl::TObject* Sender);
    void ReloadClick(vcl::TObject* Sender);
    void ExitClick(vcl::TObject* Sender);
    void TodayClick(vcl::TObject* Sender);
    void PreviousClick(vcl::TObject* Sender);
    void NextClick(vcl::TObject* Sender);
    void GoToDateClick(vcl::TObject* Sender);
    /// The sender's Tag is the number of days.
    void DaysClick(vcl::TObject* Sender);
    void ZoomInClick(vcl::TObject* Sender);
    void ZoomOutClick(vcl::TObject* Sender);
    void WorkingHoursClick(vcl::TObject* Sender);
    void SetWorkingHoursClick(vcl::TObject* Sender);
    void ItemClick(vcl::TObject* Sender, TKSTimeViewItem* Item);
    void ItemDblClick(vcl::TObject* Sender, TKSTimeViewItem* Item);
    void ViewClick(vcl::TObject* Sender);
    void FormCloseQuery(vcl::TObject* Sender, bool& CanClose);

    /// Where the state is kept when the window closes.
    std::function<void(const TState&)> OnRemember;

protected:
    void CMSysColorChange(vcl::TMessage& Message) override;

private:
    template <class T>
    T* Find(const char* Name) const;
    void FindParts();
    void LoadFileNames(const std::vector<std::string>& Files);
    void FillView();
    void FillItem(TKSTimeViewItem& Item, int EventIndex) const;
    void ApplyWorkingHours();
    void ApplyMarks();
    int FirstMinuteOfInterest() const;
    void ScrollToMinute(int Minute);
    void ShowRange();
    void ShowDetails(const TKSTimeViewItem* Item);
    void ShowDaysChoice();
    void ChooseFiles(bool Keep);
    void ReportError(const std::exception& Error);
    std::vector<std::string> FileNames() const;

    std::unique_ptr<TCalendarSet> FCalendars;
    std::vector<TCalendarEvent> FEvents;
    std::unique_ptr<vcl::TImageList> FImages;
    TDaySpan FSpan;
    int FMarks = 0; // index into the ruler's choices
    bool FShowWork = true;
    vcl::TTime FBeginWork = 8.0 / 24;
    vcl::TTime FEndWork = 17.5 / 24;

    TKSTimeView* FTimeView = nullptr;
    vcl::TLabel* FRangeLabel = nullptr;
    vcl::TStatusBar* FStatusBar = nullptr;
    vcl::TOpenDialog* FOpenDialog = nullptr;
};

} // namespace planner
