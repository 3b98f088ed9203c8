#ifndef HYDROFACTS_DEMO_TEMPERATUREPAGE_H
#define HYDROFACTS_DEMO_TEMPERATUREPAGE_H

#include "demo/Page.h"

namespace demo {

/// Saturated fluids: a form without a pressure, on which the user chooses the state.
class TemperaturePage : public Page {
  public:
    explicit TemperaturePage(Site& site) : Page(site), fluid_(&site.units) {}

    void Relabel() override;
    void UnitsChanged(const Units& before) override;

  protected:
    win32::DialogBuilder Form() const override;
    std::span<const Label> Labels() const override;
    std::span<const Following> Follows() const override;
    void Init() override;
    bool Command(int control, int code, LPARAM lParam) override;

  private:
    void Calculate();
    void ShowState();

    CFluidDlg fluid_;
};

}  // namespace demo

#endif
