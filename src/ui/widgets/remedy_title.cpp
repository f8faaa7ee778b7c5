#include "ui/widgets/remedy_title.h"

#include <QObject>

namespace kelvo {

QString remedyTitle(Remedy remedy) {
    switch (remedy) {
    case Remedy::ShowRemoteTab:
        return QObject::tr("Show Remote Mac");
    case Remedy::ChooseMac:
        return QObject::tr("Choose the Mac");
    case Remedy::EnterAccount:
        return QObject::tr("Enter the Account");
    case Remedy::SetUpKey:
        return QObject::tr("Set Up the Key");
    case Remedy::ChooseSource:
    case Remedy::ChooseDestination:
        return QObject::tr("Choose…");
    case Remedy::CopyInstallCommand:
        return QObject::tr("Copy the command");
    case Remedy::CheckAgain:
        return QObject::tr("Check Again");
    case Remedy::ShowDetails:
        return QObject::tr("Details");
    case Remedy::OpenLog:
        return QObject::tr("Open the Log");
    case Remedy::None:
        break;
    }
    return {};
}

} // namespace kelvo
