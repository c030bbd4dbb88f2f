#include "platform/qt/documents/FileType.h"

#include "document/Document.h"

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

TEST(FileType, goesByTheExtensionAndElseByTheBytes) {
    EXPECT_EQ(typeOfFile("a.TXT", "caf\xE9"), plainTextType);
    EXPECT_EQ(typeOfFile("a.rtf", "The cat"), richTextType);
    EXPECT_EQ(typeOfFile("README", "The cat"), plainTextType);
    EXPECT_EQ(typeOfFile("README", "{\\rtf1 caf\xE9}"), richTextType);
    EXPECT_EQ(typeOfFile("README", "caf\xE9"), "public.text");
    EXPECT_FALSE(isWritable(typeOfFile("a.docx", "PK")));
    EXPECT_FALSE(isWritable(typeOfFile("README", "caf\xE9")));
}

} // namespace
} // namespace lexiform::qt
