#include "places/BookmarkFile.h"

#include <gtest/gtest.h>

namespace {

using places::BookmarkLink;
using places::Bookmarks;
using places::ReadBookmarks;
using places::WriteBookmarks;
using Texts = std::vector<std::string>;

constexpr std::string_view kBrowsersFile = R"(<!DOCTYPE NETSCAPE-Bookmark-file-1>
<!-- This is an automatically generated file. <A HREF="http://comment.example/">no</A> -->
<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=UTF-8">
<TITLE>Bookmarks</TITLE>
<H1>Bookmarks</H1>
<DL><p>
    <DT><H3 ADD_DATE="1" PERSONAL_TOOLBAR_FOLDER="true">Bar</H3>
    <DL><p>
        <DT><A HREF="https://owl.example/?a=1&amp;b=2" ADD_DATE="2" ICON="data:image/png;base64,AA>">Owls &amp; more</A>
        <DD>A description
        <DT><H3>Inner</H3>
        <DL><p>
            <DT><A HREF="https://lark.example/">Lark</A>
        </DL><p>
        <DT><A HREF="https://wren.example/">Wren</A>
    </DL><p>
    <DT><H3>Empty</H3>
    <DL><p>
    </DL><p>
    <DT><A HREF="https://alone.example/">Alone</A>
</DL>
)";

Texts Shown(const Bookmarks& bookmarks) {
    Texts shown;
    for (const BookmarkLink& link : bookmarks.links)
        shown.push_back(link.group + "|" + link.name + "|" + link.address);
    return shown;
}

TEST(BookmarkFile, FoldersBecomeGroups) {
    const Bookmarks found = ReadBookmarks(kBrowsersFile);

    EXPECT_EQ(found.groups, (Texts{"Bar", "Bar / Inner", "Empty", "Imported"}));
    EXPECT_EQ(Shown(found),
              (Texts{"Bar|Owls & more|https://owl.example/?a=1&b=2", "Bar / Inner|Lark|https://lark.example/",
                     "Bar|Wren|https://wren.example/", "Imported|Alone|https://alone.example/"}));
    EXPECT_EQ(found.skipped, 0u);
}

TEST(BookmarkFile, WhatIsWrittenIsReadAgain) {
    const Bookmarks all{.groups = {"A & B", "Empty", "C <d>"},
                        .links = {{"A & B", "\"Owls\"", "https://owl.example/?a=1&b='2'"},
                                  {"C <d>", "L\xC3\xA4rche", "http://lark.example/"}}};

    const Bookmarks again = ReadBookmarks(WriteBookmarks(all));

    EXPECT_EQ(again.groups, all.groups);
    EXPECT_EQ(Shown(again), Shown(all));
}

TEST(BookmarkFile, OnlyPagesAndFilesAreTaken) {
    const Bookmarks found = ReadBookmarks(R"file(<DL>
        <A HREF="javascript:alert(1)">a</A> <A HREF=" JavaScript:alert(1)">b</A>
        <A HREF="java&#10;script:alert(1)">c</A> <A HREF="data:text/html,x">d</A>
        <A HREF="place:sort=8">e</A> <A HREF="about:blank">f</A> <A>g</A> <A HREF="">h</A>
        <A HREF="brindlepost://settings/">i</A> <A HREF="file:page.html">j</A>
        <A HREF="HTTPS://owl.example/">k</A> <A HREF='file:///home/a.html'>l</A>
        <A NAME=x HREF=http://lark.example/>m</A></DL>)file");

    EXPECT_EQ(Shown(found), (Texts{"Imported|k|HTTPS://owl.example/", "Imported|l|file:///home/a.html",
                                   "Imported|m|http://lark.example/"}));
    EXPECT_EQ(found.skipped, 10u);
}

TEST(BookmarkFile, DamagedFilesGiveWhatCanBeRead) {
    const std::pair<const char*, Texts> cases[] = {
        {"", {}},
        {"no markup at all", {}},
        {"<", {}},
        {"<!-- never closed <A HREF='http://a/'>a</A>", {}},
        {"<A HREF='http://a/'>a", {"Imported|a|http://a/"}},
        {"<A HREF='http://a/'", {"Imported|http://a/|http://a/"}},
        {"<A HREF=\"http://a/>a</A>\n<A HREF='http://b/'>b</A>",
         {"Imported|a|http://a/", "Imported|b|http://b/"}},
        {"<A HREF='http://a/'>a<A HREF='http://b/'>b</A>", {"Imported|a|http://a/", "Imported|b|http://b/"}},
        {"</DL></DL><H3>G<DL><A HREF='http://a/'>a</A>", {"Imported|a|http://a/"}},
        {"<H3>G</H3><A HREF='http://a/'>a</A>", {"Imported|a|http://a/"}},
        {"<H3>G</H3><DL><A HREF='http://a/'></A>", {"G|http://a/|http://a/"}},
        {"<H3>  \t </H3><DL><A HREF='http://a/'> <b>bold</b>\r\n a </A>", {"Imported|bold a|http://a/"}},
    };
    for (const auto& [file, links] : cases)
        EXPECT_EQ(Shown(ReadBookmarks(file)), links) << file;
}

TEST(BookmarkFile, TheBytesTellTheirCharacters) {
    const Texts expected{"L\xC3\xA4rche|\xC3\xA4|http://a/"};
    const std::string utf8 = "<H3>L\xC3\xA4rche</H3><DL><A HREF='http://a/'>\xC3\xA4</A>";
    const std::string windows = "<H3>L\xE4rche</H3><DL><A HREF='http://a/'>\xE4</A>";
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    for (const char character : windows) {
        little.append({character, '\0'});
        big.append({'\0', character});
    }

    for (const std::string& bytes : {utf8, "\xEF\xBB\xBF" + utf8, windows, little, big, little + "x"})
        EXPECT_EQ(Shown(ReadBookmarks(bytes)), expected);
}

TEST(BookmarkFile, ACharacterOfTwoHalvesIsOne) {
    const std::string owl("\xFF\xFE\x3D\xD8\x09\xDE", 6);
    std::string file = "\xFF\xFE";
    for (const char character : std::string("<A HREF='http://a/'>"))
        file.append({character, '\0'});

    EXPECT_EQ(ReadBookmarks(file + owl.substr(2)).links.at(0).name, "\xF0\x9F\x98\x89");
}

TEST(BookmarkFile, NamesAreOnOneLineCutAndWithoutTheSortingCharacter) {
    const std::string a_long_one(1000, 'a');
    const Bookmarks found = ReadBookmarks("<H3>***G*</H3><DL><A HREF='http://a/'>" + a_long_one +
                                          "</A><A HREF='http://b/'>5*\n\x01hotel</A>");

    EXPECT_EQ(found.links[0].name.size(), places::kLongestBookmarkName);
    EXPECT_EQ(found.links[1].name, "5\xE2\x88\x97 hotel");
    EXPECT_EQ(found.groups, (Texts{"\xE2\x88\x97\xE2\x88\x97\xE2\x88\x97G\xE2\x88\x97"}));
}

TEST(BookmarkFile, ALongAddressIsLeftOut) {
    const Bookmarks found = ReadBookmarks("<A HREF='http://a/" + std::string(5000, 'a') + "'>a</A>");

    EXPECT_TRUE(found.links.empty());
    EXPECT_EQ(found.skipped, 1u);
}

TEST(BookmarkFile, ManyLinksAreCountedUpToTheLimit) {
    std::string file = "<DL>";
    for (std::size_t i = 0; i < places::kMostBookmarks + 10; ++i)
        file += "<A HREF='http://a/" + std::to_string(i) + "'>a</A>";

    const Bookmarks found = ReadBookmarks(file);

    EXPECT_EQ(found.links.size(), places::kMostBookmarks);
    EXPECT_EQ(found.skipped, 10u);
}

TEST(BookmarkFile, FoldersWithinFoldersEnd) {
    std::string file;
    for (int i = 0; i < 100000; ++i)
        file += "<H3>folder</H3><DL>";
    file += "<A HREF='http://a/'>a</A>";
    for (int i = 0; i < 100000; ++i)
        file += "</DL>";
    file += "<A HREF='http://b/'>b</A>";

    const Bookmarks found = ReadBookmarks(file);

    ASSERT_EQ(found.links.size(), 2u);
    EXPECT_LE(found.links[0].group.size(), places::kLongestBookmarkName);
    EXPECT_EQ(found.links[1].group, "Imported");
    EXPECT_LT(found.groups.size(), 200u);
}

}  // namespace
