#ifndef KVOGUI_DIALOG_H
#define KVOGUI_DIALOG_H

#include <boost/enable_shared_from_this.hpp>
#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <memory>

#include "kvogui/Signals.h"
#include "win32/Win32.h"

namespace kvo::gui {

class Control;

/// A modal dialog from a template among a module's resources. A dialog of one's own derives from
/// it, adds its controls and connects what it does on OK:
///
///     class SiteDialog : public kvo::gui::Dialog {
///       public:
///         SiteDialog() : Dialog(109), name_(kvo::gui::EditControl::new_control(1318)) {
///             add(name_);
///             Connect_ok([](Dialog& dialog) { dialog.apply(); dialog.close(); });
///         }
///       ...
///     };
///     if (boost::make_shared<SiteDialog>()->showModal(module, parent)) use(...);
///
/// A dialog and its controls belong to the thread that shows it. What a slot or an override throws
/// ends the dialog and comes out of showModal.
class HYDROFACTS_API Dialog : public boost::enable_shared_from_this<Dialog> {
  protected:
    /// Prepares the dialog: its window and all controls are there, and nothing is visible yet. An
    /// override calls this first, which gives the added controls their windows.
    virtual void init();

    /// Acts on a message to the window; not 0 if that was all. OK runs the slots of Connect_ok;
    /// Cancel, Escape and closing the window close the dialog.
    virtual int processMessage(unsigned message, WPARAM wParam, LPARAM lParam);

  public:
    virtual ~Dialog();
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    /// Shows the dialog and returns when it is closed: true if it was applied. False also if the
    /// module has no such template, or if the dialog is being shown already. `parent` may be null;
    /// it is disabled meanwhile. The dialog keeps itself alive if a shared_ptr owns it.
    bool showModal(HINSTANCE module, HWND parent);

    /// The window; null while the dialog isn't shown.
    HWND handle() const;

    /// Makes a control part of the dialog, which shares it.
    void add(const boost::shared_ptr<Control>& control);

    /// From here on `slot` runs when the user presses OK. It lasts as long as the dialog, or until
    /// the connection is ended. A dialog without slots stays open on OK.
    boost::signals::connection Connect_ok(const boost::function<void(Dialog&)>& slot);

    /// Makes what the user has done count: showModal gives true.
    void apply();

    /// Ends the dialog.
    void close();

  protected:
    /// `templateId`: the number of the template.
    explicit Dialog(int templateId);

  private:
    struct State;

    HYDROFACTS_HIDDEN static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                                        LPARAM lParam);
    HYDROFACTS_HIDDEN int handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    HYDROFACTS_HIDDEN void detachControls();

    int templateId_;
    HWND handle_ = nullptr;
    bool applied_ = false;
    std::unique_ptr<State> state_;
};

}  // namespace kvo::gui

#endif
