#pragma once
// The arc dialogs as the user opens them from the menu, with a check of the
// fields of the elements or of the segment.
#include <string>
#include <vector>

#include "calc/frame/menue_umgebung.h"
#include "points/numbers/konstanten.h"

namespace kolm::calc::testing {

struct BogenUmgebung : MenueUmgebung {
  static constexpr double kGon = numbers::Pi / 200, kGrad = numbers::Pi / 180;

  // Erg(0), Erg(1), ... show exactly these texts.
  static void felder(const RechenDialog& d, const std::vector<std::string>& erwartet) {
    for (size_t i = 0; i < erwartet.size(); ++i)
      EXPECT_EQ(d.control("Erg", static_cast<int>(i)).captionText(), erwartet[i]) << "Erg(" << i << ")";
  }
  // The one box shown since the last check, with the dialog's caption as title.
  void meldung(const RechenDialog& d, const std::string& text) {
    ASSERT_EQ(meldungen().size(), 1u);
    EXPECT_EQ(meldungen()[0].message.text, text);
    EXPECT_EQ(meldungen()[0].message.title, d.caption());
    EXPECT_EQ(meldungen()[0].message.icon, forms::Icon::Exclamation);
    meldungen().clear();
  }
};

}  // namespace kolm::calc::testing
