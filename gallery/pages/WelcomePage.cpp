#include "pages/WelcomePage.h"

#include <QLabel>

WelcomePage::WelcomePage(QWidget* parent)
    : GalleryPage(
          tr("WyWidgets gallery"),
          tr("Every control of the library, live. Choose a family on the left; turn the knobs beside an "
             "example; the code below it is all that the example needs."),
          parent)
{
    auto* hint =
        new QLabel(tr("Switch between the light and the dark theme with the button in the title bar. "
                      "Run the gallery with --grab DIR to save a picture of every page."));
    hint->setWordWrap(true);
    addExample(tr("Finding your way"), hint, nullptr, QString());
}
