#ifndef HYDROFACTS_DEMO_PAGE_H
#define HYDROFACTS_DEMO_PAGE_H

#include <functional>
#include <span>
#include <string>

#include "demo/Controls.h"
#include "demo/Texts.h"
#include "hydrofacts/hydrofacts.h"
#include "win32/DialogBuilder.h"

namespace demo {

class PropertyCurve;

/// What all pages share.
struct Site {
    Units units{HF_METRIC};
    int language = 0;
    std::string tables;             ///< the directory of the tables
    std::function<void()> changed;  ///< has the main dialog show its summary anew

    // Plots are drawn by the platform: it is told of the control of a plot once, and sees the
    // messages of its page.
    std::function<void(HWND control, const PropertyCurve&)> showPlot;
    std::function<bool(UINT, WPARAM, LPARAM, const PropertyCurve&)> drawPlot;
};

/// One page of the main dialog: a child dialog that keeps the address of its object.
class Page {
  public:
    explicit Page(Site& site) : site_(site) {}
    virtual ~Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    /// Makes the child dialog, hidden; false if that fails.
    bool Create(HWND parent);
    HWND Handle() const { return dialog_; }
    void Place(const RECT& place) const;
    virtual void Show(bool show);

    /// Shows the labels, units and messages of the present language and units.
    virtual void Relabel();
    /// Converts what is shown, after a change from `before` to the present units.
    virtual void UnitsChanged(const Units& before) = 0;
    /// What is chosen, in a few words; empty if nothing is.
    virtual std::string Summary() const { return {}; }
    /// Enter, where no button of the page has the focus.
    virtual void Enter() {}

  protected:
    /// A control and what stands on it.
    struct Label {
        int control;
        Text text;
    };

    virtual win32::DialogBuilder Form() const = 0;
    virtual std::span<const Label> Labels() const = 0;
    virtual std::span<const Following> Follows() const = 0;
    virtual void Init() = 0;
    virtual bool Command(int control, int code, LPARAM lParam) = 0;
    virtual bool Notify(const NMHDR&) { return false; }
    virtual bool Other(UINT, WPARAM, LPARAM) { return false; }

    std::string Say(Text text) const { return demo::Say(text, site_.language); }
    std::string Number(double value) const {
        return NumberText(value, DecimalSign(site_.language));
    }
    void Put(int control, const std::string& text) const { SetText(dialog_, control, text); }

    Site& site_;
    HWND dialog_ = nullptr;

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    bool Handle(UINT message, WPARAM wParam, LPARAM lParam);

    Layout layout_;
};

}  // namespace demo

#endif
