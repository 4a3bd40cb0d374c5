#pragma once

#include "favourites/frmFav.h"
#include "menubar/MenuBar1.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {

// A favourites window as whoever makes one leaves it, with a new palette.
class FavouritesTest : public RuntimeTest {
 protected:
  FavouritesTest() {
    Application::current().MenuBar = MenuBar1::Instance();
    window = open();
  }

  static Ref<frmFav> open() {
    Ref<frmFav> opened = New<frmFav>();
    opened->Show();
    opened->NewClut();
    return opened;
  }

  // A menu command reaches the front window, which reports it as handled.
  static void choose(const String& item) { EXPECT_TRUE(Application::current().dispatch(item)) << item; }

  // The user clicks a cell of the palette, or behind the last one.
  void select(Int32 cell) const { gesture::click(window->imgClut, cell % 30 * 13 + 5, cell / 30 * 13 + 5); }
  void selectNothing() const { gesture::click(window->imgClut, 380, 104); }

  Ref<frmFav> window;
};

}  // namespace tavrelkin
