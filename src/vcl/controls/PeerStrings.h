#pragma once

#include <functional>
#include <vector>

#include "vcl/classes/Strings.h"
#include "vcl/platform/Peers.h"

namespace vcl
{

/// The rows of a list box or combo box and which of them are chosen: kept here, each change passed on to the
/// platform's list while there is one. Sorted lists take a new row to its place, without regard to case.
class TPeerStrings : public TStrings
{
public:
    /// Whether the platform's list or the control knows what is chosen.
    enum class TChoice { OfPeer, OfControl };

    /// Peer answers the platform's list, or null while there is none. Changed is called after each change, or
    /// once after EndUpdate.
    TPeerStrings(TChoice Choice, std::function<IListPeer*()> Peer, std::function<void()> Changed)
        : FPeer(std::move(Peer)), FChanged(std::move(Changed)), FChoice(Choice)
    {
    }

    bool GetSorted() const { return FSorted; }
    void SetSorted(bool Value);
    /// Gives all rows and what is chosen to the platform's list, which has just been made.
    void Apply();
    /// Takes what is chosen over from the platform's list, if that knows.
    void Keep();
    /// The platform's list, unless changes wait for EndUpdate.
    IListPeer* Live() const { return IsUpdating() ? nullptr : FPeer(); }

    /// The chosen row, -1 none. It follows its row when others come and go.
    int GetItemIndex() const { return FItemIndex; }
    /// An index of no row chooses none. The platform is not told.
    void SetItemIndex(int Value) { FItemIndex = Value >= 0 && Value < GetCount() ? Value : -1; }
    /// Rows chosen besides, in a list that allows several.
    bool IsSelected(int Index) const { return FRows[Checked(Index, FRows.size())].Selected; }
    void SetSelected(int Index, bool Value) { FRows[Checked(Index, FRows.size())].Selected = Value; }

    int GetCount() const override { return static_cast<int>(FRows.size()); }
    AnsiString GetString(int Index) const override;
    void SetString(int Index, const AnsiString& Text) override;
    TObject* GetObject(int Index) const override;
    void SetObject(int Index, TObject* Object) override;
    int Add(const AnsiString& Text) override;
    void Insert(int Index, const AnsiString& Text) override;
    void Delete(int Index) override;
    void Clear() override;

protected:
    void SetUpdateState(bool Updating) override;

private:
    struct TRow {
        AnsiString Text;
        TObject* Object = nullptr;
        bool Selected = false;
    };

    std::size_t Checked(int Index, std::size_t End) const;
    void Changed();

    std::function<IListPeer*()> FPeer;
    std::function<void()> FChanged;
    std::vector<TRow> FRows;
    int FItemIndex = -1;
    TChoice FChoice;
    bool FSorted = false;
};

} // namespace vcl
