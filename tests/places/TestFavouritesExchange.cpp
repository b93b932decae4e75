#include "places/FavouritesExchange.h"

#include "places/PlacesHarness.h"

namespace {

using places_tests::Row;
using places_tests::RowsOf;
using places_tests::Texts;

class FavouritesExchange : public places_tests::FavouritesTest {
protected:
    places::FavouritesExchange exchange{{panel.datFav, panel.lblEntryCount}, room};
};

TEST_F(FavouritesExchange, WhatComesInFollowsTheRowsThatAreThere) {
    SeedFavourites();
    Load();

    const std::string words = exchange.Import(
        "<H3>News</H3><DL><A HREF='http://owl.example/'>Owl</A></DL>"
        "<H3>Birds</H3><DL><A HREF='http://lark.example/'>Lark</A></DL>");

    EXPECT_EQ(words, "2 favourites in 1 new group came in.");
    const std::vector<Row> rows = FavRows();
    ASSERT_GE(rows.size(), 3u);
    EXPECT_EQ(std::vector<Row>(rows.end() - 3, rows.end()),
              (std::vector<Row>{{"7", "Birds", " ", " "},
                                {"8", "News", "  - Owl", "http://owl.example/"},
                                {"9", "Birds", "  - Lark", "http://lark.example/"}}));
    EXPECT_EQ(panel.lblEntryCount.Caption(), "9");
    EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Birds", "Empty", "Home Pages", "News"}));
    EXPECT_EQ(RowsOf(form.lstGroup), (Texts{"Birds", "Empty", "Home Pages", "News"}));
}

TEST_F(FavouritesExchange, WhatIsThereAlreadyComesInOnce) {
    SeedFavourites();
    Load();
    const std::string file =
        "<H3>News</H3><DL><A HREF='http://post.example/'>Post</A>"
        "<A HREF='http://owl.example/'>Owl</A><A HREF='http://owl.example/'>Owl</A></DL>";
    EXPECT_EQ(exchange.Import(file), "1 favourite in 0 new groups came in. 2 were there already.");
    const std::size_t rows = FavRows().size();

    EXPECT_EQ(exchange.Import(file), "0 favourites in 0 new groups came in. 3 were there already.");

    EXPECT_EQ(FavRows().size(), rows);
}

TEST_F(FavouritesExchange, AnotherFileChangesNothing) {
    SeedFavourites();
    Load();
    const std::size_t rows = FavRows().size();

    EXPECT_EQ(exchange.Import(""), "There are no favourites in this file.");
    EXPECT_EQ(exchange.Import("\x89PNG\r\n\x1A\n"), "There are no favourites in this file.");
    EXPECT_EQ(exchange.Import("<A HREF='javascript:1'>a</A>"),
              "There is no favourite in this file that is a page.");

    EXPECT_EQ(FavRows().size(), rows);
}

TEST_F(FavouritesExchange, TheTableIsFilledUpToItsLimit) {
    Load();
    const std::size_t before = FavRows().size();
    std::string file = "<H3>Many</H3><DL>";
    for (std::size_t i = 0; i < places::kMostBookmarks; ++i)
        file += "<A HREF='http://a.example/" + std::to_string(i) + "'>a" + std::to_string(i) + "</A>";

    const std::string words = exchange.Import(file);

    EXPECT_EQ(FavRows().size(), places::kMostBookmarks);
    EXPECT_NE(words.find("For " + std::to_string(before + 1) + " there is no room."), std::string::npos)
        << words;
}

TEST_F(FavouritesExchange, ExportAndImportGiveTheSameFavourites) {
    SeedFavourites();
    Load();
    const std::string file = exchange.Export();
    EXPECT_NE(file.find("<A HREF=\"http://post.example/\">Post</A>"), std::string::npos) << file;

    EXPECT_EQ(exchange.Import(file), "0 favourites in 0 new groups came in. 3 were there already.");
}

TEST_F(FavouritesExchange, ASpecialNameIsExportedAsItIs) {
    stores.Seed("tblFavs", {{"2", "A & B", " ", " "}, {"3", "A & B", "  - <x> ", "C:\\pages\\a.html"}});
    Load();

    const std::string file = exchange.Export();

    EXPECT_NE(file.find("<H3>A &amp; B</H3>"), std::string::npos) << file;
    EXPECT_NE(file.find("<A HREF=\"C:\\pages\\a.html\">&lt;x&gt; </A>"), std::string::npos) << file;
}

}  // namespace
