#ifndef KVOGUI_SIGNALS_H
#define KVOGUI_SIGNALS_H

#include <boost/signals2/connection.hpp>

/// The name by which connections are known to hosts. It is one of Qt's macros as well: programs
/// that include headers of Qt too define QT_NO_KEYWORDS.
namespace boost::signals {
using connection = signals2::connection;  ///< ends what a slot listens to
}  // namespace boost::signals

#endif
