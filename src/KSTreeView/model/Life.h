#pragma once

#include <memory>

namespace treeview
{

/// A member that tells those who hold a witness when its object is gone: event handlers may free the tree.
class TLife
{
public:
    TLife() = default;
    ~TLife() { *FAlive = false; }
    TLife(const TLife&) = delete;
    TLife& operator=(const TLife&) = delete;

private:
    friend class TLifeWitness;
    std::shared_ptr<bool> FAlive = std::make_shared<bool>(true);
};

class TLifeWitness
{
public:
    explicit TLifeWitness(const TLife& Life) : FAlive(Life.FAlive) {}
    bool IsAlive() const { return *FAlive; }

private:
    std::shared_ptr<bool> FAlive;
};

} // namespace treeview
