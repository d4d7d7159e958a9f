#include <climits>
#include <limits>
#include <memory>

#include <gtest/gtest.h>

#include "vcl/system/Event.h"
#include "vcl/system/Object.h"
#include "vcl/system/Set.h"
#include "vcl/system/Types.h"

namespace vcl::tests
{

namespace
{

enum class TDay { Monday, Tuesday, Sunday = 31 };
using TDays = TSet<TDay>;

class TBase : public TObject
{
    VCL_CLASS
public:
    explicit TBase(AnsiString& Log) : FLog(Log) {}
    ~TBase() override { FLog += "~TBase "; }
    void AfterConstruction() override { FLog += "base-after "; }
    void BeforeDestruction() override { FLog += "base-before "; }

protected:
    AnsiString& FLog;
};

class TMiddle : public TBase
{
    VCL_CLASS
public:
    using TBase::TBase;
    ~TMiddle() override { FLog += "~TMiddle "; }
    void AfterConstruction() override { FLog += "after "; }
    void BeforeDestruction() override
    {
        FLog += "before ";
        TBase::BeforeDestruction();
    }
};

class TOther : public TObject
{
    VCL_CLASS
};

const TClass& TBase::StaticClass()
{
    static const TClass Class{"TBase", &TObject::StaticClass()};
    return Class;
}

const TClass& TMiddle::StaticClass()
{
    static const TClass Class{"TMiddle", &TBase::StaticClass()};
    return Class;
}

const TClass& TOther::StaticClass()
{
    static const TClass Class{"TOther", &TObject::StaticClass()};
    return Class;
}

class TCounter
{
public:
    void Count(TObject*) { ++FCount; }
    int GetCount() const { return FCount; }

private:
    int FCount = 0;
};

} // namespace

TEST(Set, AMembersOrdinalIsItsBit)
{
    EXPECT_EQ(0x80000001U, (TDays{TDay::Monday, TDay::Sunday}).Bits());
    EXPECT_TRUE(TDays::FromBits(2).Contains(TDay::Tuesday));
    EXPECT_TRUE(TDays().IsEmpty());
}

TEST(Set, JoinsIntersectsAndSubtractsLikeSets)
{
    const TDays Early{TDay::Monday, TDay::Tuesday};
    const TDays Ends{TDay::Monday, TDay::Sunday};
    EXPECT_EQ((TDays{TDay::Monday, TDay::Tuesday, TDay::Sunday}), Early + Ends);
    EXPECT_EQ(TDays{TDay::Monday}, Early * Ends);
    EXPECT_EQ(TDays{TDay::Tuesday}, Early - Ends);
    TDays Changed = Early;
    Changed.Include(TDay::Sunday).Exclude(TDay::Monday);
    EXPECT_EQ((TDays{TDay::Tuesday, TDay::Sunday}), Changed);
}

TEST(Object, DeleteReachesTheMostDerivedClassBeforeAnyDestructor)
{
    AnsiString Log;
    TBase* const Object = New<TMiddle>(Log);
    delete Object;
    EXPECT_EQ("after before base-before ~TMiddle ~TBase ", Log);
}

TEST(Object, AUniquePointerDestroysTheSameWay)
{
    AnsiString Log;
    std::unique_ptr<TObject> Object(New<TMiddle>(Log));
    Object.reset();
    EXPECT_EQ("after before base-before ~TMiddle ~TBase ", Log);
}

TEST(Object, AnObjectOnTheStackHasOnlyItsDestructors)
{
    AnsiString Log;
    {
        const TMiddle Object(Log);
    }
    EXPECT_EQ("~TMiddle ~TBase ", Log);
}

TEST(Object, AsGivesTheObjectOnlyForItsClassAndAncestors)
{
    AnsiString Log;
    const std::unique_ptr<TObject> Object(New<TMiddle>(Log));
    EXPECT_EQ(Object.get(), As<TMiddle>(Object.get()));
    EXPECT_EQ(Object.get(), As<TBase>(Object.get()));
    EXPECT_EQ(nullptr, As<TOther>(Object.get()));
    EXPECT_EQ(nullptr, As<TBase>(static_cast<TObject*>(nullptr)));
    EXPECT_EQ("TMiddle", Object->ClassName());
    EXPECT_TRUE(Object->InheritsFrom(TObject::StaticClass()));
}

TEST(Object, ClassesOfTheSameNameAreTheSameClass)
{
    const TClass Elsewhere{"TBase", &TObject::StaticClass()};
    EXPECT_TRUE(TMiddle::StaticClass().InheritsFrom(Elsewhere));
    EXPECT_FALSE(TOther::StaticClass().InheritsFrom(Elsewhere));
}

TEST(Event, CallsItsHandlerAndDoesNothingWithoutOne)
{
    TEvent<void(int, bool&)> Event;
    bool Allow = true;
    Event(3, Allow);
    EXPECT_TRUE(Allow);
    EXPECT_FALSE(Event);
    Event = [](int Value, bool& Result) { Result = Value > 5; };
    Event(3, Allow);
    EXPECT_TRUE(Event);
    EXPECT_FALSE(Allow);
    Event = nullptr;
    EXPECT_FALSE(Event.IsAssigned());
}

TEST(Event, BindsAMemberFunction)
{
    TCounter Counter;
    TNotifyEvent Event;
    Event.Bind(&Counter, &TCounter::Count);
    Event(nullptr);
    Event(nullptr);
    EXPECT_EQ(2, Counter.GetCount());
}

TEST(Event, AHandlerMayReplaceItselfOrFreeTheHolder)
{
    auto Event = std::make_unique<TNotifyEvent>();
    AnsiString Log;
    *Event = [&, Text = AnsiString("kept alive")](TObject*) {
        *Event = nullptr;
        Event.reset();
        Log += Text;
    };
    (*Event)(nullptr);
    EXPECT_EQ("kept alive", Log);
    EXPECT_EQ(nullptr, Event);
}

TEST(Event, KeepsTheHandlersPublishedName)
{
    TNotifyEvent Event;
    Event.SetHandlerName("FormClick");
    EXPECT_EQ("FormClick", Event.GetHandlerName());
    EXPECT_FALSE(Event.IsAssigned());
    TEventBase& Base = Event;
    EXPECT_TRUE(Base.Bind(std::any(std::function<void(TObject*)>([](TObject*) {})), "ButtonClick"));
    EXPECT_FALSE(Base.Bind(std::any(std::function<void(int)>([](int) {})), "Wrong"));
    EXPECT_EQ("ButtonClick", Event.GetHandlerName());
    Base.Reset();
    EXPECT_EQ("", Event.GetHandlerName());
    EXPECT_FALSE(Event.IsAssigned());
}

TEST(RoundHalfEven, TakesTheNearestAndOfTwoTheEvenOne)
{
    EXPECT_EQ(0, RoundHalfEven(0.5));
    EXPECT_EQ(2, RoundHalfEven(1.5));
    EXPECT_EQ(2, RoundHalfEven(2.5));
    EXPECT_EQ(-2, RoundHalfEven(-1.5));
    EXPECT_EQ(-2, RoundHalfEven(-2.5));
    EXPECT_EQ(3, RoundHalfEven(2.5000001));
    EXPECT_EQ(0, RoundHalfEven(0.49999999999999994));
}

TEST(RoundHalfEven, SaturatesAndTakesNoNumberForZero)
{
    EXPECT_EQ(INT_MAX, RoundHalfEven(1e300));
    EXPECT_EQ(INT_MIN, RoundHalfEven(-std::numeric_limits<double>::infinity()));
    EXPECT_EQ(INT_MAX, RoundHalfEven(2147483647.4));
    EXPECT_EQ(0, RoundHalfEven(std::numeric_limits<double>::quiet_NaN()));
}

} // namespace vcl::tests
