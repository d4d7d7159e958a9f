#pragma once

#include <functional>
#include <map>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "vcl/system/Exception.h"

namespace vcl::tests
{

using TJson = nlohmann::json;

/// The operations of a reference case by name; each gets its arguments with the name at place 0, and returns
/// null when it has no result.
using TOperations = std::map<std::string, std::function<TJson(const TJson& Arguments)>>;

/// Runs one operation. An exception becomes an object with its class and message.
inline TJson RunOperation(const TOperations& Operations, const TJson& Operation)
{
    try {
        return Operations.at(Operation[0].get<std::string>())(Operation);
    } catch (const Exception& Error) {
        return {{"exception", Error.ClassName()}, {"message", Error.what()}};
    }
}

/// The number in parentheses of an index error's message, or an empty text.
inline std::string IndexIn(const std::string& Message)
{
    const std::size_t Open = Message.find('(');
    const std::size_t Close = Message.find(')');
    return Open == std::string::npos || Close == std::string::npos ? std::string()
                                                                   : Message.substr(Open, Close - Open);
}

/// Results must be equal; of an exception the class, and the index that its message names.
inline void ExpectResult(const TJson& Expected, const TJson& Actual, const std::string& Where)
{
    if (!Expected.is_object() || !Expected.contains("exception")) {
        EXPECT_EQ(Expected, Actual) << Where;
        return;
    }
    ASSERT_TRUE(Actual.is_object() && Actual.contains("exception")) << Where << ": " << Actual.dump();
    EXPECT_EQ(Expected["exception"], Actual["exception"]) << Where;
    if (Expected.contains("message")) {
        EXPECT_EQ(IndexIn(Expected["message"]), IndexIn(Actual["message"]))
            << Where << ": " << Actual["message"];
    }
}

/// What the rules say a case gives: the documented results where they differ from the measured ones.
inline const TJson& ExpectedOf(const TJson& Case)
{
    return Case.contains("documented") ? Case["documented"] : Case;
}

/// Runs the operations one after the other and compares each result.
inline void ExpectSequence(const TJson& Case, const TOperations& Operations)
{
    const TJson& Results = ExpectedOf(Case)["results"];
    ASSERT_EQ(Case["ops"].size(), Results.size()) << Case["id"];
    for (std::size_t Index = 0; Index < Results.size(); ++Index) {
        const TJson& Operation = Case["ops"][Index];
        ExpectResult(Results[Index], RunOperation(Operations, Operation),
                     Case["id"].get<std::string>() + " " + Operation.dump());
    }
}

} // namespace vcl::tests
