// Context menus of a table and an outline, and rows that go to the trash.

#import "GalleryProcess.h"
#include "XTest.h"

namespace ov::test {

static const std::string kTowns =
    "La Paz,Lhasa,Quito,Addis Ababa,Mexico City,Sana'a,Nairobi,Denver";
static const std::string kInstruments = "Brass,Horn,Trumpet,Trombone,Tuba,Strings,Woodwinds";

class TablesJourney : public GalleryJourney {
 protected:
  void open() {
    start({"-page", "tables"});
    waitFor("the rows", [](const GalleryState &s) {
      return s.value("towns") == kTowns && s.value("instruments") == kInstruments;
    });
  }

  ScreenRect row(const std::string &name) const {
    const ScreenRect rect = state().rect(name);
    EXPECT_GT(rect.width, 0) << name;
    return rect;
  }

  bool choose(const std::string &name, const std::string &key, const std::string &chosen) {
    for (int i = 0; i < 10; ++i) {
      const ScreenRect rect = row(name);
      pressAt(rect.x + 60, rect.midY());
      if (pumpUntil([&] { return state().value(key) == chosen; }, 1)) return true;
      nudgePointer();
    }
    return waitFor(chosen, [&](const GalleryState &s) { return s.value(key) == chosen; });
  }

  // Right-clicks and chooses from the menu that comes up with its first item, a heading, below
  // the pointer.
  bool chooseFromMenu(int x, int y, int item, const std::string &what,
                      const std::function<bool(const GalleryState &)> &is) {
    for (int i = 0; i < 8; ++i) {
      xtest::movePointer(x, y);
      xtest::pressButton(3);
      pumpUntil([] { return false; }, 0.1);
      xtest::releaseButton(3);
      pumpUntil([] { return false; }, 0.4);
      nudgePointer();
      glide(x, y, x + 30, y + 12 + 20 * item);
      pumpUntil([] { return false; }, 0.2);
      pressAt(x + 30, y + 12 + 20 * item);
      nudgePointer();
      if (pumpUntil([&] { return is(state()); }, 2)) return true;
      typeKeys({"Escape"});
    }
    return waitFor(what, is);
  }

  bool chooseFromMenuOf(const std::string &name, int item, const std::string &what,
                        const std::function<bool(const GalleryState &)> &is) {
    const ScreenRect rect = row(name);
    return chooseFromMenu(rect.x + 60, rect.midY(), item, what, is);
  }

  // Slowly: the platform looks at the pointer some thirty times a second.
  void drag(const std::string &name, int x, int y) {
    const ScreenRect from = row(name);
    // The platform drags rows that are selected already; the second press is no double click.
    pressAt(from.x + 20, from.midY());
    nudgePointer();
    pumpUntil([] { return false; }, 0.8);
    xtest::movePointer(from.x + 60, from.midY());
    pumpUntil([] { return false; }, 0.1);
    xtest::pressButton();
    pumpUntil([] { return false; }, 0.2);
    for (int i = 1; i <= 8; ++i) {
      xtest::movePointer(from.x + 60 + (x - from.x - 60) * i / 8,
                         from.midY() + (y - from.midY()) * i / 8);
      pumpUntil([] { return false; }, 0.08);
    }
    pumpUntil([] { return false; }, 0.3);
    xtest::releaseButton();
    pumpUntil([] { return false; }, 0.2);
    nudgePointer();
  }

  bool dragToTrash(const std::string &name, const std::string &key, const std::string &left) {
    for (int i = 0; i < 4; ++i) {
      const ScreenRect trash = state().rect("trash");
      drag(name, trash.midX(), trash.midY());
      if (pumpUntil([&] { return state().value(key) == left; }, 3)) return true;
      nudgePointer();
    }
    return waitFor(left, [&](const GalleryState &s) { return s.value(key) == left; });
  }
};

TEST_F(TablesJourney, ARightClickSelectsARowAndItsMenuActsOnIt) {
  open();
  ASSERT_TRUE(chooseFromMenuOf("town.Quito", 1, "Quito at the top", [](const GalleryState &s) {
    return s.value("towns").starts_with("Quito,La Paz,Lhasa,Addis");
  }));
  EXPECT_TRUE(chooseFromMenuOf("town.Nairobi", 2, "Nairobi deleted", [](const GalleryState &s) {
    return s.value("towns") == "Quito,La Paz,Lhasa,Addis Ababa,Mexico City,Sana'a,Denver";
  }));
}

TEST_F(TablesJourney, ARightClickBelowTheRowsSelectsNoneAndHasAMenuOfItsOwn) {
  open();
  ASSERT_TRUE(dragToTrash("town.Denver", "towns",
                          "La Paz,Lhasa,Quito,Addis Ababa,Mexico City,Sana'a,Nairobi"));
  ASSERT_TRUE(choose("town.Lhasa", "chosentowns", "Lhasa"));
  const ScreenRect table = state().rect("table");
  chooseFromMenu(table.x + 100, table.y + table.height - 40, 1, "all rows",
                 [](const GalleryState &s) {
                   return s.value("towns") == kTowns && s.value("chosentowns").empty();
                 });
}

TEST_F(TablesJourney, AnOutlinesMenuKnowsItsItem) {
  open();
  ASSERT_TRUE(chooseFromMenuOf("item.Trombone", 1, "its place", [](const GalleryState &s) {
    return s.value("message") == "Trombone is number 3 of Brass." &&
           s.value("choseninstruments") == "Trombone";
  }));
  ASSERT_TRUE(chooseFromMenuOf("item.Strings", 1, "its place", [](const GalleryState &s) {
    return s.value("message") == "Strings is number 2 of the top level.";
  }));
  EXPECT_TRUE(chooseFromMenuOf("item.Horn", 2, "the horn deleted", [](const GalleryState &s) {
    return s.value("instruments") == "Brass,Trumpet,Trombone,Tuba,Strings,Woodwinds";
  }));
}

TEST_F(TablesJourney, RowsAreDeletedInTheTrashAndNowhereElse) {
  open();
  // On the table itself, and on the page's title: nobody takes them there.
  const ScreenRect window = state().window, table = state().rect("table");
  drag("town.Lhasa", window.x + 500, window.y + 30);
  drag("town.Lhasa", table.midX(), table.y + table.height - 20);
  ASSERT_TRUE(choose("town.Quito", "chosentowns", "Quito"));
  EXPECT_EQ(state().value("towns"), kTowns);
  ASSERT_TRUE(dragToTrash("town.Quito", "towns",
                          "La Paz,Lhasa,Addis Ababa,Mexico City,Sana'a,Nairobi,Denver"));
  EXPECT_EQ(state().value("message"), "Quito is deleted.");
  // A closed trash takes nothing.
  ASSERT_TRUE(clickUntil("closed", "closed",
                         [](const GalleryState &s) { return s.number("isclosed") == 1; }));
  const ScreenRect trash = state().rect("trash");
  drag("town.Lhasa", trash.midX(), trash.midY());
  ASSERT_TRUE(choose("town.Sana'a", "chosentowns", "Sana'a"));
  EXPECT_TRUE(state().value("towns").starts_with("La Paz,Lhasa"));
}

TEST_F(TablesJourney, ItemsOfTheOutlineGoToTheTrashToo) {
  open();
  EXPECT_TRUE(
      dragToTrash("item.Tuba", "instruments", "Brass,Horn,Trumpet,Trombone,Strings,Woodwinds"));
}

}  // namespace ov::test
