// InterfaceRegistry: makes the controllers of the interface by their identifiers.
#pragma once

#include <QString>
#include <QStringView>

#include <functional>
#include <map>
#include <memory>

namespace kelvo {

class InterfaceController;

inline constexpr QStringView cMyWindowControllerID = u"MyWindowControllerID";
inline constexpr QStringView cMyViewControllerID = u"MyViewControllerID";

/// Main thread only.
class InterfaceRegistry {
public:
    using Maker = std::function<std::shared_ptr<InterfaceController>()>;

    /// From now on `maker` makes the controllers of `identifier`; an earlier one is forgotten.
    void add(QStringView identifier, Maker maker);

    /// A controller as its maker makes it, afresh at each call; nothing for an unknown identifier.
    std::shared_ptr<InterfaceController> instantiateController(QStringView identifier) const;

    /// The same as a controller of a certain class; nothing when it is of another class.
    template <typename Controller>
    std::shared_ptr<Controller> instantiate(QStringView identifier) const {
        return std::dynamic_pointer_cast<Controller>(instantiateController(identifier));
    }

private:
    std::map<QString, Maker, std::less<>> fMakers;
};

} // namespace kelvo
