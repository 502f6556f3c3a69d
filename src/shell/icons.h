#pragma once
#include <QIcon>
#include <string>
#include <vector>

namespace kolm::shell {

// Icon of a button of the main window's bars by the name the model gives it
// (Control::iconName). Open and save come from the style; the rest are drawn,
// as the style has none for them and theme icons crash at exit under a static
// QApplication (the test programs). An unknown name gives a null icon.
QIcon BarIcon(const std::string& name);

// Every name BarIcon knows.
std::vector<std::string> BarIconNames();

// The drawn glyph alone, without style or theme, at size x size pixels.
QPixmap DrawnGlyph(const std::string& name, int size);

}  // namespace kolm::shell
