// The chart tree with many nodes, each with five below it: 1400 x 900 pixels as a program shows them.

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "KSTreeView/KSTreeView.h"
#include "benchmarks/Table.h"
#include "vcl/forms/Form.h"

namespace ks::bench
{

namespace
{

constexpr int Width = 1400;
constexpr int Height = 900;
constexpr std::size_t FanOut = 5;
constexpr const char* Caption = "Node 12345678";
/// What the window shows of such a chart: 17 boxes of the lowest row, those above them, and their buttons.
constexpr TFloor Window = {.Rectangles = 30, .Texts = 24};

void Fill(TKSTreeNodes& Nodes, std::size_t Count)
{
    std::vector<TKSTreeNode*> Made(1, nullptr);
    Made.reserve(Count + 1);
    Nodes.BeginUpdate();
    for (std::size_t Index = 0; Index < Count; ++Index)
        Made.push_back(Nodes.AddChild(Made[(Index + FanOut - 1) / FanOut], Caption));
    for (TKSTreeNode* Node = Nodes.GetFirstNode(); Node; Node = Node->GetNextSibling())
        Node->Expand(true);
    Nodes.EndUpdate();
}

/// A form with a chart on it.
class TChart
{
public:
    explicit TChart(std::size_t Count = 0)
        : FForm(vcl::New<vcl::TForm>(nullptr)), FView(vcl::New<TKSTreeView>(FForm.get()))
    {
        FForm->SetClientSize({Width, Height});
        FView->SetBorderStyle(vcl::TBorderStyle::bsNone);
        FView->SetBounds(0, 0, Width, Height);
        FView->SetParent(FForm.get());
        FForm->Show();
        FView->Refresh();
        if (Count == 0)
            return;
        Fill(*FView->GetItems(), Count);
        // Somewhere in the middle, where most boxes are.
        FView->GetHorzScrollBar()->SetPosition(FView->GetHorzScrollBar()->GetMaxPosition() / 2);
        FView->Refresh();
    }

    TKSTreeView& View() { return *FView; }

private:
    std::unique_ptr<vcl::TForm> FForm;
    TKSTreeView* FView;
};

void FillLayOutAndPaint(benchmark::State& State)
{
    TChart Chart;
    for (auto _ : State) {
        Fill(*Chart.View().GetItems(), 10'000); // painted when the update ends
        State.PauseTiming();
        Chart.View().GetItems()->Clear();
        State.ResumeTiming();
    }
}

void ScrollStep(benchmark::State& State)
{
    TChart Chart(10'000);
    TKSTVScrollBar& Bar = *Chart.View().GetHorzScrollBar();
    int Step = 8;
    for (auto _ : State) {
        Bar.ScrollBy(Step);
        Chart.View().Update();
        Step = -Step;
    }
}

void PanStep(benchmark::State& State)
{
    TChart Chart(10'000);
    int Step = 30;
    for (auto _ : State) {
        Chart.View().GetHorzScrollBar()->ScrollBy(Step);
        Chart.View().GetVertScrollBar()->ScrollBy(Step);
        Chart.View().Update();
        Step = -Step;
    }
}

void Toggle(benchmark::State& State)
{
    TChart Chart(10'000);
    TKSTreeNode* const Node = Chart.View().GetItems()->GetFirstNode()->GetItem(1);
    for (auto _ : State)
        Node->SetExpanded(!Node->GetExpanded());
}

void LayOutAndPaintMany(benchmark::State& State)
{
    TChart Chart(100'000);
    for (auto _ : State) {
        Chart.View().GetItems()->ShapeChanged(); // as after a change: everything is laid out anew
        Chart.View().Refresh();
    }
}

/// Nodes without a view, and the same as text.
struct TManyNodes {
    TManyNodes()
    {
        Fill(Nodes, 100'000);
        TKSTreeStrings(&Nodes).SaveTreeToStream(Text);
        Nodes.WriteData(Binary);
    }
    TKSTreeNodes Nodes;
    vcl::TMemoryStream Text;
    vcl::TMemoryStream Binary;
};

void LoadText(benchmark::State& State)
{
    TManyNodes Many;
    for (auto _ : State) {
        TKSTreeNodes Nodes;
        Many.Text.SetPosition(0);
        Nodes.ReadText(Many.Text);
        State.PauseTiming();
        Nodes.Clear();
        State.ResumeTiming();
    }
}

void SaveText(benchmark::State& State)
{
    TManyNodes Many;
    for (auto _ : State) {
        vcl::TMemoryStream Stream;
        TKSTreeStrings(&Many.Nodes).SaveTreeToStream(Stream);
        benchmark::DoNotOptimize(Stream.GetMemory());
    }
}

void WriteAndReadBinary(benchmark::State& State)
{
    TManyNodes Many;
    for (auto _ : State) {
        TKSTreeNodes Nodes;
        vcl::TMemoryStream Stream;
        Many.Nodes.WriteData(Stream);
        Stream.SetPosition(0);
        Nodes.ReadData(Stream);
        State.PauseTiming();
        Nodes.Clear();
        State.ResumeTiming();
    }
}

void EveryIndex(benchmark::State& State)
{
    TManyNodes Many;
    TKSTreeStrings Strings(&Many.Nodes);
    for (auto _ : State)
        benchmark::DoNotOptimize(Strings.GetText().data());
}

} // namespace

void AddTreeViewCases(TCases& Cases)
{
    const auto Add = [&](const char* Name, void (*Run)(benchmark::State&), double Reach, TFloor Floor = {}) {
        Cases.Rows.push_back({.Name = Name, .Run = Run, .Reach = Reach, .Floor = Floor});
    };
    Add("tree of 10,000: fill, lay out, first paint", FillLayOutAndPaint, 60, Window);
    Add("tree of 10,000: scroll step", ScrollStep, 4);
    Add("tree of 10,000: pan step", PanStep, 4);
    Add("tree of 10,000: toggle a node", Toggle, 10, Window);
    Add("tree of 100,000: lay out and paint", LayOutAndPaintMany, 120, Window);
    Add("tree of 100,000: load text", LoadText, 80);
    Add("tree of 100,000: save text", SaveText, 80);
    Add("tree of 100,000: write and read binary", WriteAndReadBinary, 80);
    Add("tree of 100,000: text by index", EveryIndex, 50);
}

} // namespace ks::bench
