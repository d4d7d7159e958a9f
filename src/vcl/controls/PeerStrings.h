#pragma once

#include <functional>
#include <vector>

#include "vcl/classes/Strings.h"
#include "vcl/platform/Peers.h"

namespace vcl
{

/// The strings of a list box or combo box: kept here, each change passed on to the platform's list while
/// there is one. Sorted lists take a new string to its place, without regard to case.
class TPeerStrings : public TStrings
{
public:
    /// Peer answers the platform's list, or null while there is none.
    explicit TPeerStrings(std::function<IListPeer*()> Peer) : FPeer(std::move(Peer)) {}

    bool GetSorted() const { return FSorted; }
    void SetSorted(bool Value);
    /// Gives all strings to the platform's list, which has just been made.
    void Apply();

    int GetCount() const override { return static_cast<int>(FTexts.size()); }
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
    std::size_t Checked(int Index, std::size_t End) const;
    /// The platform's list, unless changes wait for EndUpdate.
    IListPeer* Live() const { return IsUpdating() ? nullptr : FPeer(); }

    std::function<IListPeer*()> FPeer;
    std::vector<AnsiString> FTexts;
    std::vector<TObject*> FObjects;
    bool FSorted = false;
};

} // namespace vcl
