#ifndef HYDROFACTS_DEMO_MAINDIALOG_H
#define HYDROFACTS_DEMO_MAINDIALOG_H

#include <array>
#include <memory>

#include "demo/ConditionsPage.h"
#include "demo/FluidPage.h"
#include "demo/PipePage.h"
#include "demo/TemperaturePage.h"
#include "demo/ValvePage.h"

namespace demo {

/// The controls of the main dialog.
enum MainControl : int {
    kPages = 1001,
    kUnits,
    kUnitsLabel,
    kPressures,
    kPressuresLabel,
    kAtmosphere,
    kAtmosphereLabel,
    kAtmosphereUnit,
    kElevation,
    kLanguage,
    kLanguageLabel,
    kSummary,
    kPageArea,
};

/// The program: a list of pages, the page, and above it what holds for all pages.
class MainDialog {
  public:
    /// `site` brings the directory of the tables and how plots are drawn.
    explicit MainDialog(const Site& site);

    /// Makes the window, hidden; false if that fails.
    bool Create();
    HWND Handle() const { return dialog_; }
    Page& At(int page) const { return *pages_[static_cast<std::size_t>(page)]; }

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    bool Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void Init();
    bool Command(int control, int code);
    void ShowPage(int page);
    void PlacePages() const;
    void Relabel();
    void FillLists();
    void ShowAtmosphere();
    void ShowSummary() const;
    void TakeUnits();
    void TakeAtmosphere();
    void AskElevation();
    void TakeLanguage();
    void Converted(const Units& before);
    void KeepSize(MINMAXINFO& sizes) const;

    Site site_;
    FluidPage fluid_;
    ConditionsPage conditions_;
    TemperaturePage temperature_;
    PipePage pipe_;
    ValvePage valve_;
    std::array<Page*, 5> pages_;
    int shown_ = 0;
    HWND dialog_ = nullptr;
    Layout layout_;
    SIZE least_{};
};

}  // namespace demo

#endif
