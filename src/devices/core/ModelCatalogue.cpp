// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/ModelCatalogue.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace Velmora::Utils {
namespace {

struct CatalogueRow
{
    const char* configName;
    const char* displayName;
    const char* interface;
    bool translated = false;
};

// Config names are stored on the services in the field, so none may be brought into line with its neighbours.
constexpr CatalogueRow catalogueRows[] = {
    {"FennaPro_RS232", "Fenna Pro", "RS232"},
    {"FennaIIPro_USB", "Fenna II Pro", "USB"},
    {"Fenna_Avr_USB", "Fenna AVR", "USB"},
    {"LumoLCD_USB", "Lumo LCD", "USB"},
    {"Quenta_USB", "Quenta", "USB"},
    {"LumoPro_USB", "Lumo Pro", "USB"},
    {"LumoPro_Rack_RS232", "Lumo Pro Rack", "RS232"},
    {"LumoPro_Avr_USB", "Lumo Pro Avr CDS", "USB"},
    {"LumoPro_Avr_Rack_USB", "Lumo Pro Avr Rack CDS", "USB"},
    {"Cormel_RS232", "Cormel", "RS232"},
    {"Cormel_USB", "Cormel", "USB"},
    {"Cormel_Rack_RS232", "Cormel Rack", "RS232"},
    {"Cormel_HID_USB", "Cormel HID", "USB"},
    {"Cormel_HID_Rack_USB", "Cormel HID Rack", "USB"},
    {"CormelJ_USB", "Cormel J", "USB"},
    {"Cormel_Rack_USB", "Cormel Rack", "USB"},
    {"CormelRT_USB", "Cormel RT", "USB"},
    {"CormelRT_SNMP", "Cormel RT", "SNMP"},
    {"CormelRT_XL_USB", "Cormel RT XL", "USB"},
    {"CormelRT_XL_SNMP", "Cormel RT XL", "SNMP"},
    {"CormelXL_USB", "Cormel XL", "USB"},
    {"CormelXL_RS232", "Cormel XL", "RS232"},
    {"CormelXL_SNMP", "Cormel XL", "SNMP"},
    {"CormelXL_Rack_USB", "Cormel XL Rack", "USB"},
    {"CormelXL_Rack_RS232", "Cormel XL Rack", "RS232"},
    {"CormelXL_Rack_SNMP", "Cormel XL Rack", "SNMP"},
    {"CormelLT_RS232", "Cormel LT", "RS232"},
    {"CormelLT_USB", "Cormel LT", "USB"},
    {"CormelLT_SNMP", "Cormel LT", "SNMP"},
    {"CormelPro_RS232", "Cormel Pro", "RS232"},
    {"CormelPro_USB", "Cormel Pro", "USB"},
    {"CormelPro_Rack_RS232", "Cormel Pro Rack", "RS232"},
    {"CormelPro_Rack_USB", "Cormel Pro Rack", "USB"},
    {"CormelPro_SNMP", "Cormel Pro", "SNMP"},
    {"CormelPro_Rack_SNMP", "Cormel Pro Rack", "SNMP"},
    {"TARVEX_RT_PLUS_USB", "TARVEX RT PLUS", "USB"},
    {"TARVEX_RT_PLUS_RS232", "TARVEX RT PLUS", "RS232"},
    {"TARVEX_RT_PLUS_SNMP", "TARVEX RT PLUS", "SNMP"},
    {"TarvexRTPlus6_10_USB", "TARVEX RT PLUS 6k/10k", "USB"},
    {"TarvexRTPlus6_10_RS232", "TARVEX RT PLUS 6k/10k", "RS232"},
    {"TarvexRTPlus6_10_SNMP", "TARVEX RT PLUS 6k/10k", "SNMP"},
    {"Tarvex_RT_PRO_1k_3k_RS232", "TARVEX RT PRO 1k-3k", "RS232"},
    {"Tarvex_RT_PRO_1k_3k_USB", "TARVEX RT PRO 1k-3k", "USB"},
    {"Tarvex_RT_PRO_1k_3k_SNMP", "TARVEX RT PRO 1k-3k", "SNMP"},
    {"Tarvex_KOMBI_10k_20k_RS232", "TARVEX KOMBI 10k/20k", "RS232"},
    {"Tarvex_KOMBI_10k_20k_SNMP", "TARVEX KOMBI 10k/20k", "SNMP"},
    {"Tarvex_NOIR_RS232", "TARVEX NOIR", "RS232"},
    {"Tarvex_NOIR_SNMP", "TARVEX NOIR", "SNMP"},
    {"Hedrix_RS232", "Hedrix", "RS232"},
    {"Hedrix_USB", "Hedrix", "USB"},
    {"Hedrix_SNMP", "Hedrix", "SNMP"},
    {"Tarvex_Dual31_SNMP", "TARVEX 31 DUAL", "SNMP"},
    {"Tarvex33_RS232", "Tarvex 33", "RS232"},
    {"Tarvex33_USB", "Tarvex 33", "USB"},
    {"Tarvex33_SNMP", "Tarvex 33", "SNMP"},
    {"Tarvex33Verde_RS232", "Tarvex 33 Verde", "RS232"},
    {"Tarvex33Verde_USB", "Tarvex 33 Verde", "USB"},
    {"Tarvex33Verde_SNMP", "Tarvex 33 Verde", "SNMP"},
    {"TarvexRT_USB", "Tarvex RT", "USB"},
    {"TarvexRT_RS232", "Tarvex RT", "RS232"},
    {"TarvexRT_SNMP", "Tarvex RT", "SNMP"},
    {"TarvexRT_6_10_USB", "Tarvex RT 6000/10000", "USB"},
    {"TarvexRT_6_10_RS232", "Tarvex RT 6000/10000", "RS232"},
    {"TarvexRT_6_10_SNMP", "Tarvex RT 6000/10000", "SNMP"},
    {"CormelMeridian_RS232", "Cormel Meridian", "RS232"},
    {"CormelMeridian_USB", "Cormel Meridian", "USB"},
    {"CormelMeridian_SNMP", "Cormel Meridian", "SNMP"},
    {"Tarvex_RS232", "Tarvex", "RS232"},
    {"Virtual_Device", QT_TRANSLATE_NOOP("QObject", "Wirtualny UPS"), "", true},
    {"Borel_SNMP", QT_TRANSLATE_NOOP("QObject", "Agregat Borel"), "SNMP", true},
};

QString unknownModel()
{
    return QStringLiteral("unknown");
}

} // namespace

QList<Model> getAllSuportedModelList()
{
    QList<Model> models;
    models.reserve(static_cast<int>(std::size(catalogueRows)));
    for (const CatalogueRow& row : catalogueRows) {
        const QString displayName = row.translated ? QCoreApplication::translate("QObject", row.displayName)
                                                   : QString::fromUtf8(row.displayName);
        models.append(
            Model(QString::fromUtf8(row.configName), displayName, QString::fromUtf8(row.interface)));
    }
    return models;
}

const Model* findModel(const QList<Model>& models, const QString& configName)
{
    const auto model = std::find_if(models.cbegin(), models.cend(), [&configName](const Model& candidate) {
        return candidate.configName == configName;
    });
    return model == models.cend() ? nullptr : &*model;
}

QString getModelShortName(const QString& configName)
{
    const QList<Model> models = getAllSuportedModelList();
    const Model* model = findModel(models, configName);
    return model ? model->shortName : unknownModel();
}

QString getModelConfigName(const QString& shortName, const QString& interface)
{
    const QList<Model> models = getAllSuportedModelList();
    for (const Model& model : models) {
        if (model.shortName == shortName && model.interface == interface)
            return model.configName;
    }
    return unknownModel();
}

QStringList getInterfaceType(const QString& shortName)
{
    QStringList interfaces;
    const QList<Model> models = getAllSuportedModelList();
    for (const Model& model : models) {
        if (model.shortName == shortName)
            interfaces.append(model.interface);
    }
    return interfaces;
}

} // namespace Velmora::Utils
