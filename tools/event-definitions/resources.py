# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""Which keys the service reports for each family of devices, in the order in which they are offered.

Keys stand without the prefix of their class. One resource per stem; what several share has a name of its own."""

from typing import NamedTuple, Optional

from labels import GENSET_ALARMS as GENSET_CONDITIONS
from labels import GENSET_MARKS


class Resource(NamedTuple):
    stem: str  # file name without suffix
    models: str  # whom the file serves, for its readers
    root: str  # name of the root element; says nothing about the models
    states: str
    messages: str
    alarms: str
    parameters: Optional[str]  # None: the file has no such section


GENSET_ALARMS = " ".join(condition + ending for condition in GENSET_CONDITIONS for ending in GENSET_MARKS)

CORMEL_RT_STATES = """
    NoCommunication Normal BatteryBackup Emergency Watch Unknown Stop Waiting
"""

CORMEL_RT_MESSAGES = """
    OutputOverload BatteryLowLevel BoostingAvrEngaged BuckingAvrEngaged BoostingAvrBlocked BuckingAvrBlocked
    Charging FunTurnedOn EpoBlocked NeedReplacement BatteryOverheated InverterOverheated WaitingForMinimalCharge
"""

CORMEL_RT_ALARMS = """
    OutputOverload UpsShortcut InverterTemperatureLimit BatteryTemperatureLimit ActiveEpo InternalError
    ReversePowerSupply NoInternalCommunication CriticalBatteryVoltage
"""

CORMEL_RT_PARAMETERS = """
    BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage OutputCurrent
    OutputFreq OutputSpuriousPower OutputActivePower OutputPf BatteryTemp RadiatorTemp
"""

LARGE_DEVICE_STATES = """
    NoCommunication Normal BatteryBackup Eco Bypass Watch Initialization Waiting Hybrid Emergency Stop Unknown
"""

THREE_PHASE_ALARMS = """
    UpsShortcut BatteryTemperatureLimit ActiveEpo InverterTemperatureLimit AccumulatorError
    RectifierTemperatureLimit RectifierInternalError InverterInternalError ParallelWorkModeError
"""

TARVEX_RT_STATES = """
    NoCommunication Normal BatteryBackup Eco Bypass Watch Initialization BatteryTest Fault Converter ShutdownUps
"""

TARVEX_RT_SNMP_MESSAGES = """
    OutputOverload BatteryLowLevel Bypass ShutdownActive AwaitingPower BatteryStatusUnknown BatteryStatusNormal
    BatteryDepleted BatteryDischarging BatteryFailure TestOk TestFailed TestInProgress TestCanceled
"""

TARVEX_RT_SNMP_ALARMS = """
    OutputOverload TemperatureIncrease FanLock ChargerFail
"""

LINE_INTERACTIVE_STATES = """
    NoCommunication Normal BatteryBackup Emergency Unknown Waiting
"""

DOUBLE_CONVERSION_STATES = """
    NoCommunication Normal BatteryBackup Eco Bypass Stop Initialization BatteryTest Emergency Converter
"""

DOUBLE_CONVERSION_MESSAGES = """
    UtilityFail BatteryLowLevel Bypass UpsFailed TestInProgress ShutdownActive UpsNormalMode Ups110Overload
    InputLNFault
"""

RT_PLUS_6_10_ALARMS = """
    OutputOverload FanLock ChargerFail
"""

NOIR_STATES = """
    NoCommunication Normal BatteryBackup EcoBypass Stop Emergency
"""

NOIR_MESSAGES = """
    OutputOverload BatteryLowLevel MainsOutOfRange BypassOutOfRange MaintenanceBypassCover UpsOverheating
"""

NOIR_ALARMS = """
    OutputOverload FanLock ChargerFail BypassOverload TemperatureOverSettingLimit LoadOverSettingLimit
"""

NOIR_PARAMETERS = """
    BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage OutputCurrent
    OutputFreq OutputSpuriousPower OutputActivePower OutputPf BatteryCurrent PositiveBusVoltage NegativeBusVoltage
    Temperature BypassVoltage BypassCurrent BypassFreq
"""

KOMBI_ALARMS = """
    OutputOverload FanLock ChargerFail BusFault InverterFault IncorrectOrderMain IncorrectOrderBypass
"""

RT_PRO_ALARMS = """
    OutputOverload InverterFault FanLock ChargerFail InputLNFault UpsOverheated
"""

RT_PLUS_STATES = """
    NoCommunication Normal BatteryBackup Emergency Stop SelfTest Eco Bypass
"""

RT_PLUS_PARAMETERS = """
    BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage OutputCurrent
    OutputFreq OutputActivePower
"""

NETWORK_CARD_PARAMETERS = """
    BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage OutputCurrent
    OutputFreq OutputActivePower BatteryTemp BatteryCurrent SecondsOnBattery
"""

DOUBLE_CONVERSION_PARAMETERS = """
    BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage OutputCurrent
    OutputFreq PositiveBusVoltage NegativeBusVoltage Temperature
"""

# Offered only if the device says that it can work in parallel, or compensate reactive power.
NEEDS_PARALLEL = {
    "Tarvex33": """
        message2ParallelWorkModeMaster message2ParallelWorkModeSlave message2LcdError message2ParallelUnitStopped
        message2ParallelWorkNoRedundancy message2ParallelUnitNotEnabled message2ParallelWorkModeNotEnoughUnits
        alarmParallelWorkModeError
    """.split()
}
NEEDS_COMPENSATION = {"Tarvex33": ["message2PowerCompensation"]}

RESOURCES = [
    Resource(
        stem="Borel_SNMP",
        models="Borel genset (SNMP)",
        root="cormel_rt_usb",
        states="NoCommunication GensetOn GensetOff",
        messages="OilLowLevel TemperatureIncrease Prestart",
        alarms=GENSET_ALARMS,
        parameters="",
    ),
    Resource(
        stem="CormelRT",
        models="Cormel RT (USB)",
        root="cormel_rt_usb",
        states=CORMEL_RT_STATES,
        messages=CORMEL_RT_MESSAGES,
        alarms=CORMEL_RT_ALARMS,
        parameters=CORMEL_RT_PARAMETERS,
    ),
    Resource(
        stem="CormelRT_SNMP",
        models="Cormel RT (SNMP), Cormel RT XL (SNMP)",
        root="cormel_rt_usb",
        states="NoCommunication Normal BatteryBackup Watch AvrActive",
        messages="",
        alarms="""
            BatteryBad OnBattery LowBattery DepletedBattery TempBad InputBad OutputOverload OutputOffAsRequest
            UpsOutputOff GeneralFault AwaitingPower ShutdownPending ShutdownImminent
        """,
        parameters=NETWORK_CARD_PARAMETERS,
    ),
    Resource(
        stem="CormelRT_XL",
        models="Cormel RT XL (USB)",
        root="cormel_rt_usb",
        states=CORMEL_RT_STATES,
        messages=CORMEL_RT_MESSAGES,
        alarms=CORMEL_RT_ALARMS,
        parameters=CORMEL_RT_PARAMETERS,
    ),
    Resource(
        stem="Cormel_HID",
        models="Cormel HID (USB), Cormel HID Rack (USB)",
        root="cormel_rt_usb",
        states=LINE_INTERACTIVE_STATES,
        messages="""
            OutputOverload BatteryLowLevel Charging NeedReplacement MainsOutOfRange ShdwnIsPending RestoreIsPending
        """,
        alarms="OutputOverload InternalError",
        parameters=None,
    ),
    Resource(
        stem="Fenna_Avr",
        models="Fenna AVR (USB)",
        root="fenna_avr_usb",
        states="NoCommunication Normal BatteryBackup Emergency Unknown Stop SelfTest",
        messages="""
            OutputOverload BatteryLowLevel BoostingAvrEngaged BuckingAvrEngaged Charging NeedReplacement TestOk
            TestFailed UpsOutputOff
        """,
        alarms="OutputOverload UpsShortcut InternalError",
        parameters="""
            BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage OutputFreq
        """,
    ),
    Resource(
        stem="Hedrix",
        models="Hedrix (RS232, USB, SNMP), Cormel Meridian (RS232, USB, SNMP)",
        root="hedrix",
        states=LARGE_DEVICE_STATES,
        messages="""
            UpsOverload Service Bypass RectifierTemperatureLimit InverterTemperatureLimit NoCommunicationRectifier
            NoCommunicationInverter
        """,
        alarms="""
            InverterTemperatureLimit TemperatureIncrease AccumulatorError RectifierTemperatureLimit
            RectifierInternalError InverterInternalError
        """,
        parameters="",
    ),
    Resource(
        stem="LumoPro_Avr",
        models="Lumo Pro Avr CDS (USB), Lumo Pro Avr Rack CDS (USB)",
        root="cormel_rt_usb",
        states=LINE_INTERACTIVE_STATES,
        messages="""
            OutputOverload BatteryLowLevel BoostingAvrEngaged BuckingAvrEngaged Charging NeedReplacement
        """,
        alarms="OutputOverload UpsShortcut InverterTemperatureLimit BatteryTemperatureLimit InternalError",
        parameters="""
            BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage
            OutputCurrent OutputFreq OutputSpuriousPower OutputActivePower BatteryTemp
        """,
    ),
    Resource(
        stem="Tarvex33",
        models="Tarvex 33 (RS232, USB, SNMP), Tarvex 33 Verde (RS232, USB, SNMP)",
        root="tarvex33",
        states=LARGE_DEVICE_STATES,
        messages="""
            OutputOverload BatteryLowLevel Charging UpsOverload Service Bypass RectifierTemperatureLimit
            InverterTemperatureLimit NoCommunicationRectifier NoCommunicationInverter IncorrectOrderBypass
            BypassVoltageOutOfRange BatteryCircuitOpen VoltageOutOfRange 2ParallelWorkModeMaster
            2ParallelWorkModeSlave 2LcdError 2ParallelUnitStopped 2ParallelWorkNoRedundancy 2ParallelUnitNotEnabled
            2ParallelWorkModeNotEnoughUnits 2PowerCompensation
        """,
        alarms=THREE_PHASE_ALARMS,
        parameters="""
            BatteryCapacity AutonomyTime InputFreq OutputFreq Temperature1 Temperature2 Temperature3 Temperature4
            BatteryUpperVoltage BatteryLowerVoltage BatteryUpperCurrent BatteryLowerCurrent AccumulatorState
            EnvironmentTemperature RelativeHumidity InputVoltageL1 InputVoltageL2 InputVoltageL3 InputCurrentL1
            InputCurrentL2 InputCurrentL3 InputActivePowerL1 InputActivePowerL2 InputActivePowerL3
            InputSpuriousPowerL1 InputSpuriousPowerL2 InputSpuriousPowerL3 InputPfL1 InputPfL2 InputPfL3
            BypassVoltageL1 BypassVoltageL2 BypassVoltageL3 BypassCurrentL1 BypassCurrentL2 BypassCurrentL3
            BypassActivePowerL1 BypassActivePowerL2 BypassActivePowerL3 BypassSpuriousPowerL1 BypassSpuriousPowerL2
            BypassSpuriousPowerL3 BypassPfL1 BypassPfL2 BypassPfL3 BypassFreq OutputVoltageL1 OutputVoltageL2
            OutputVoltageL3 OutputCurrentL1 OutputCurrentL2 OutputCurrentL3 OutputActivePowerL1 OutputActivePowerL2
            OutputActivePowerL3 OutputSpuriousPowerL1 OutputSpuriousPowerL2 OutputSpuriousPowerL3 OutputPfL1
            OutputPfL2 OutputPfL3 OutputLoadL1 OutputLoadL2 OutputLoadL3
        """,
    ),
    Resource(
        stem="TarvexRT",
        models="Tarvex RT (USB, RS232)",
        root="tarvex_rt",
        states=TARVEX_RT_STATES,
        messages="""
            OutputOverload BatteryLowLevel Bypass UtilityFail UpsFailed TestInProgress ShutdownActive EpromFail
            TestOk TestFailed TestNotPossible TestStatusUnknown NeedReplacement
        """,
        alarms="""
            OutputOverload TemperatureIncrease BusFault InverterFault InverterSoftFail FanLock OverCharge
            ChargerFail
        """,
        parameters="",
    ),
    Resource(
        stem="TarvexRTPlus6_10_RS232",
        models="TARVEX RT PLUS 6k/10k (RS232)",
        root="tarvexrtplus6_10",
        states=DOUBLE_CONVERSION_STATES,
        messages=DOUBLE_CONVERSION_MESSAGES,
        alarms=RT_PLUS_6_10_ALARMS,
        parameters="""
            BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage
            OutputCurrent OutputFreq OutputSpuriousPower OutputActivePower InputMaximumVoltage InputMinimumVoltage
            OutputCurrentPrecentage PositiveBusVoltage NegativeBusVoltage Temperature
        """,
    ),
    Resource(
        stem="TarvexRTPlus6_10_SNMP",
        models="TARVEX RT PLUS 6k/10k (SNMP)",
        root="tarvexrtplus6_10",
        states=DOUBLE_CONVERSION_STATES,
        messages=DOUBLE_CONVERSION_MESSAGES,
        alarms=RT_PLUS_6_10_ALARMS,
        parameters=NETWORK_CARD_PARAMETERS,
    ),
    Resource(
        stem="TarvexRTPlus6_10_USB",
        models="TARVEX RT PLUS 6k/10k (USB)",
        root="tarvexrtplus6_10",
        states=DOUBLE_CONVERSION_STATES,
        messages=DOUBLE_CONVERSION_MESSAGES,
        alarms=RT_PLUS_6_10_ALARMS,
        parameters=DOUBLE_CONVERSION_PARAMETERS,
    ),
    Resource(
        stem="TarvexRT_6_10",
        models="Tarvex RT 6000/10000 (USB, RS232)",
        root="tarvex_rt",
        states=TARVEX_RT_STATES,
        messages="""
            OutputOverload BatteryLowLevel Bypass UtilityFail UpsFailed TestInProgress ShutdownActive EpromFail
            TestOk TestFailed TestNotPossible TestStatusUnknown NeedReplacement 2ParallelWorkNoRedundancy
        """,
        alarms="OutputOverload TemperatureIncrease BusFault InverterFault FanLock",
        parameters="",
    ),
    Resource(
        stem="TarvexRT_SNMP",
        models="Tarvex RT (SNMP), Tarvex RT 6000/10000 (SNMP)",
        root="tarvex_rt",
        states=TARVEX_RT_STATES,
        messages=TARVEX_RT_SNMP_MESSAGES,
        alarms=TARVEX_RT_SNMP_ALARMS,
        parameters="",
    ),
    Resource(
        stem="Tarvex_NOIR_RS232",
        models="TARVEX NOIR (RS232)",
        root="tarvex_noir",
        states=NOIR_STATES,
        messages=NOIR_MESSAGES,
        alarms=NOIR_ALARMS,
        parameters=NOIR_PARAMETERS,
    ),
    Resource(
        stem="Tarvex_NOIR_SNMP",
        models="TARVEX NOIR (SNMP)",
        root="tarvex_noir",
        states=NOIR_STATES,
        messages=NOIR_MESSAGES,
        alarms=NOIR_ALARMS,
        parameters=NOIR_PARAMETERS,
    ),
    Resource(
        stem="Tarvex_Dual31_SNMP",
        models="TARVEX 31 DUAL (SNMP)",
        root="tarvex_rt",
        states=TARVEX_RT_STATES,
        messages=TARVEX_RT_SNMP_MESSAGES,
        alarms=TARVEX_RT_SNMP_ALARMS,
        parameters="",
    ),
    Resource(
        stem="Tarvex_KOMBI_10k_20k_RS232",
        models="TARVEX KOMBI 10k/20k (RS232)",
        root="tarvex_kombi_10k_20k",
        states=DOUBLE_CONVERSION_STATES,
        messages="""
            OutputOverload BatteryLowLevel NonCriticalOutOff MainsVIncorrect MaisnFIncorrect BypassVIncorrect
            BypassFIncorrect OutputsDisabled OutputsNotProtected OutputsProtected
        """,
        alarms=KOMBI_ALARMS,
        parameters="""
            BatteryCapacity AutonomyTime BatteryVoltage BatteryCurrent InputFreq InputVoltageL1 InputVoltageL2
            InputVoltageL3 InputCurrentL1 InputCurrentL2 InputCurrentL3 InputPfL1 InputPfL2 InputPfL3
            BypassVoltageL1 BypassVoltageL2 BypassVoltageL3 BypassCurrentL1 BypassCurrentL2 BypassCurrentL3
            BypassFreq OutputVoltageL1 OutputVoltageL2 OutputVoltageL3 OutputCurrentL1 OutputCurrentL2
            OutputCurrentL3 OutputFreq OutputActivePowerL1 OutputActivePowerL2 OutputActivePowerL3 OutputPfL1
            OutputPfL2 OutputPfL3 OutputLoadL1 OutputLoadL2 OutputLoadL3
        """,
    ),
    Resource(
        stem="Tarvex_KOMBI_10k_20k_SNMP",
        models="TARVEX KOMBI 10k/20k (SNMP)",
        root="tarvex_kombi_10k_20k",
        states=DOUBLE_CONVERSION_STATES,
        messages="""
            OutputOverload BatteryLowLevel MainsVIncorrect MaisnFIncorrect BypassVIncorrect BypassFIncorrect
            OutputsDisabled OutputsNotProtected OutputsProtected
        """,
        alarms=KOMBI_ALARMS,
        parameters="""
            BatteryCapacity AutonomyTime InputFreq InputVoltageL1 InputVoltageL2 InputVoltageL3 InputCurrentL1
            InputCurrentL2 InputCurrentL3 InputPfL1 InputPfL2 InputPfL3 BypassVoltageL1 BypassVoltageL2
            BypassVoltageL3 BypassCurrentL1 BypassCurrentL2 BypassCurrentL3 BypassFreq OutputVoltageL1
            OutputVoltageL2 OutputVoltageL3 OutputCurrentL1 OutputCurrentL2 OutputCurrentL3 OutputFreq
            OutputActivePowerL1 OutputActivePowerL2 OutputActivePowerL3 OutputPfL1 OutputPfL2 OutputPfL3
            OutputLoadL1 OutputLoadL2 OutputLoadL3
        """,
    ),
    Resource(
        stem="Tarvex_RT_PRO_1k_3k_RS232",
        models="TARVEX RT PRO 1k-3k (RS232)",
        root="Tarvex_RT_PRO_1k_3k",
        states=DOUBLE_CONVERSION_STATES,
        messages=DOUBLE_CONVERSION_MESSAGES,
        alarms=RT_PRO_ALARMS,
        parameters=DOUBLE_CONVERSION_PARAMETERS,
    ),
    Resource(
        stem="Tarvex_RT_PRO_1k_3k_SNMP",
        models="TARVEX RT PRO 1k-3k (SNMP)",
        root="Tarvex_RT_PRO_1k_3k",
        states=DOUBLE_CONVERSION_STATES,
        messages=DOUBLE_CONVERSION_MESSAGES,
        alarms=RT_PRO_ALARMS,
        parameters="""
            BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage
            OutputCurrent OutputFreq OutputSpuriousPower OutputActivePower BatteryCurrent SecondsOnBattery
            Temperature BypassVoltage BypassFreq
        """,
    ),
    Resource(
        stem="Tarvex_RT_PRO_1k_3k_USB",
        models="TARVEX RT PRO 1k-3k (USB)",
        root="Tarvex_RT_PRO_1k_3k",
        states=DOUBLE_CONVERSION_STATES,
        messages="""
            OutputOverload UtilityFail BatteryLowLevel Charging BatteryDischarging Bypass UpsFailed TestInProgress
            ShutdownActive EpromFail TestOk TestFailed TestCanceled UpsNormalMode Ups110Overload InputLNFault
            UpsOverheating BypassOverload ChargerFail ChargerVoltageTooHigh ChargerVoltageTooLow
            BatteryNeedsReplacement FanLock TestWarning NoInternalComm
        """,
        alarms="OutputOverload BusFault InverterFault FanLock ChargerFail InputLNFault UpsOverheated",
        parameters="""
            BatteryCapacity OutputLoad AutonomyTime InputVoltage BatteryVoltage InputFreq OutputVoltage
            OutputCurrent OutputFreq OutputSpuriousPower OutputActivePower PositiveBusVoltage NegativeBusVoltage
            Temperature BypassVoltage
        """,
    ),
    Resource(
        stem="Tarvex_RT_Plus",
        models="TARVEX RT PLUS (USB, RS232)",
        root="tarvex_rt_plus",
        states=RT_PLUS_STATES,
        messages="""
            OutputOverload BatteryLowLevel BoostingAvrEngaged BuckingAvrEngaged Charging NeedReplacement
            BatteryOverheated InverterOverheated ShdwnIsPending TestOk TestFailed UpsOutputOff
        """,
        alarms="OutputOverload UpsShortcut InternalError OverCharge",
        parameters=RT_PLUS_PARAMETERS,
    ),
    Resource(
        stem="Tarvex_RT_Plus_SNMP",
        models="TARVEX RT PLUS (SNMP)",
        root="tarvex_rt_plus",
        states=RT_PLUS_STATES,
        messages="""
            OutputOverload BatteryLowLevel Charging NeedReplacement ShdwnIsPending TestOk TestFailed UpsOutputOff
        """,
        alarms="OutputOverload InternalError",
        parameters=RT_PLUS_PARAMETERS,
    ),
    Resource(
        stem="Virtual_Device",
        models="Virtual UPS",
        root="tarvex33",
        states=LARGE_DEVICE_STATES,
        messages="BatteryLowLevel 2ParallelWorkNoRedundancy 2ParallelWorkModeNotEnoughUnits",
        alarms=THREE_PHASE_ALARMS,
        parameters="",
    ),
]
