// The damaged and nonsensical forms of data/model/forms/malformed.

#include <gtest/gtest.h>

#include "FormData.h"
#include "SampleComponents.h"
#include "support/Hex.h"

namespace vcl::tests
{

using nlohmann::json;

namespace
{

class MalformedForms : public testing::Test
{
protected:
    static void SetUpTestSuite() { RegisterSampleClasses(); }

    /// The class of the first exception of converting and reading; "" when both succeed.
    static std::string Convert(const std::string& Text)
    {
        return Raised([&] { ReadImage(TextToImage(Text)); });
    }
};

/// Exception is the class raised or "".
void ExpectOutcome(const std::string& Expected, const std::string& Exception)
{
    if (Expected == "error") {
        EXPECT_NE(Exception, "");
    } else if (Expected == "ok") {
        EXPECT_EQ(Exception, "");
    }
}

} // namespace

TEST_F(MalformedForms, TextFailsWhereItMustAndInNoOtherWayThanAnError)
{
    int Errors = 0;
    for (const json& Case : ReadJsonLines("model/forms/malformed/text.jsonl")) {
        SCOPED_TRACE(Case["id"].get<std::string>() + " " + Case["description"].get<std::string>());
        const std::string Outcome = Convert(Case["text"].get<std::string>());
        ExpectOutcome(Case["expect"], Outcome);
        Errors += Case["expect"] == "error" ? 1 : 0;
    }
    EXPECT_GE(Errors, 80);
}

TEST_F(MalformedForms, TextErrorsAreOfTheExpectedClass)
{
    for (const json& Case : ReadJsonLines("model/forms/malformed/text.jsonl")) {
        if (Case["expect"] != "error")
            continue;
        SCOPED_TRACE(Case["id"].get<std::string>() + " " + Case["description"].get<std::string>());
        const std::string Outcome = Convert(Case["text"].get<std::string>());
        if (Case["to_binary"]["outcome"] == "error") {
            // A child position that is no number is an error of the text here like all others.
            EXPECT_EQ(Outcome, "EParserError");
        } else
            EXPECT_EQ(Outcome, Case["read"]["exception"].get<std::string>());
    }
}

TEST_F(MalformedForms, TextErrorsNameTheLine)
{
    for (const json& Case : ReadJsonLines("model/forms/malformed/text.jsonl")) {
        if (Case["expect"] != "error" || !Case["to_binary"].contains("line"))
            continue;
        SCOPED_TRACE(Case["id"].get<std::string>() + " " + Case["description"].get<std::string>());
        try {
            TextToImage(Case["text"].get<std::string>());
            ADD_FAILURE() << "no error";
        } catch (const EFormParserError& Error) {
            EXPECT_EQ(Error.GetLine(), Case["to_binary"]["line"].get<int>()) << Error.what();
        }
    }
}

TEST_F(MalformedForms, BinaryImagesFailWhereTheyMust)
{
    for (const json& Case : ReadJsonLines("model/forms/malformed/binary.jsonl")) {
        SCOPED_TRACE(Case["id"].get<std::string>() + " " + Case["description"].get<std::string>());
        const std::string Image = FromHex(Case["hex"].get<std::string>());
        const std::string Read = Raised([&] { ReadImage(Image); });
        const std::string Converted = Raised([&] { ImageToText(Image); });
        ExpectOutcome(Case["expect_read"], Read);
        ExpectOutcome(Case["expect_to_text"], Converted);
        if (Case["expect_read"] == "error" && Case["read"].contains("exception")) {
            EXPECT_EQ(Read, Case["read"]["exception"].get<std::string>());
        }
    }
}

} // namespace vcl::tests
