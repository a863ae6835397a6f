// What the user sets at the panel and a factory image must not undo: the file "/userdata/log/lcd/ini/lcdsetting.ini".
// No value is cached, the file is the state. What a number means is for the panel to say. The order of the operations
// is a contract with the host.
#ifndef LCDMAINCONFIG_ILCDLANGUAGECONFIG_H
#define LCDMAINCONFIG_ILCDLANGUAGECONFIG_H

#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

#include "lcdmainconfig/settings.h"

namespace LCD::MainConfig {

/// The user's settings of the panel. Entries are told as section/entry. With the store open, an entry that is absent or
/// not a number reads as 0, a text as empty, unless told otherwise; "No store" tells what a getter gives before
/// readConfig has opened the file. A setter ends with a flush to the storage, which is its cost, reports no failure,
/// and must not be called without a store. Any thread may call, where no exception is told.
class ILcdLanguageConfig {
public:
    virtual ~ILcdLanguageConfig() = default;

    /// Opens the file, and first creates it, empty, with its directory, if it is missing. False, with a warning, if
    /// either cannot be made.
    virtual bool readConfig() = 0;

    /// Sets the panel's language: writes LanguageSetting/LanguageValue.
    virtual void setLanguage(const QString& language) = 0;
    /// The panel's language: LanguageSetting/LanguageValue. No store: empty.
    virtual QString getLanguage() = 0;

    /// Sets how far a reading of the T-bar may lie from an end and still count as the end: writes TBar/Tolerance.
    virtual void setTBarTolerance(const int& tolerance) = 0;
    /// How far a reading of the T-bar may lie from an end and still count as the end: TBar/Tolerance; an absent or
    /// empty entry is written as 100 and read so. No store: 100, nothing written.
    virtual int getTBarTolerance() = 0;
    /// Sets the readings of the T-bar at its two ends: writes TBar/CalibrationMin from the first number and
    /// TBar/CalibrationMax from the second.
    virtual void setTBarCalibration(const std::pair<int, int>& calibration) = 0;
    /// The readings of the T-bar at its two ends: TBar/CalibrationMin, then TBar/CalibrationMax; an absent or empty
    /// entry is written as 160 and 4040 and read so. No store: (160, 4040), nothing written.
    virtual std::pair<int, int> getTBarCalibration() = 0;

    /// The stream parameters of a network camera, the seven entries of RTSPSetting by number: 0 IPAddress, 1
    /// MainStream, 2 SubStream, 3 Manufacturer, 4 PassWord, 5 Port, 6 UserName. Each absent or empty one is written
    /// with its default and read so. No store: the seven defaults, nothing written.
    virtual std::vector<std::pair<int, QString>> getRTSPSettingPara() = 0;

    /// Sets the user's binding of a function button: writes `FnSetting/FnValue<index>`, at once.
    virtual void setFnSettingValue(int index, int value) = 0;
    /// Binds all function buttons alike: writes `FnSetting/FnValue<index>` for every button from 0, each with a flush
    /// of its own.
    virtual void setALLFnSettingValue(int value) = 0;
    /// The user's binding of a function button: `FnSetting/FnValue<index>`. No store: 0.
    virtual int getFnSettingValue(int index) = 0;
    /// Whether the user ever bound a function button: `FnSetting/FnValue<index>` is there. No store: false.
    virtual bool hasFnSettingValue(int index) = 0;
    /// Sets what a function button acts on: writes `FnSetting/FnTarget<index>`, at once.
    virtual void setFnSettingTargetValue(int index, int target) = 0;
    /// What a function button acts on: `FnSetting/FnTarget<index>`. No store: 0.
    virtual int getFnSettingTargetValue(int index) = 0;
    /// Sets the kind of what a function button acts on: writes `FnSetting/FnTargetType<index>`, at once.
    virtual void setFnSettingTargetTypeValue(int index, int targetType) = 0;
    /// The kind of what a function button acts on: `FnSetting/FnTargetType<index>`. No store: 0.
    virtual int getFnSettingTargetTypeValue(int index) = 0;
    /// How many function buttons setALLFnSettingValue writes; 6 at first. Kept in memory only, and takes no lock, which
    /// is meant.
    virtual void setFnBtnMaxCount(int count) = 0;

    /// Sets how long the panel stays idle before it returns to its home page: writes
    /// ReturnToHomeSetting/ReturnToHomeValue.
    virtual void setReturnToHomeTime(int value) = 0;
    /// How long the panel stays idle before it returns to its home page: ReturnToHomeSetting/ReturnToHomeValue; no unit
    /// is fixed here. No store: 0.
    virtual int getReturnToHomeTime() = 0;

    /// Sets the user mode that the panel works in: writes UserModeSetting/UserModeValue.
    virtual void setUserModeSettingValue(int value) = 0;
    /// The user mode that the panel works in: UserModeSetting/UserModeValue. No store: 0.
    virtual int getUserModeSettingValue() = 0;

    /// Sets whether the panel is locked: writes DevSetting/LockStatusValue.
    virtual void setDevLockStatusValue(int value) = 0;
    /// Whether the panel is locked: DevSetting/LockStatusValue. No store: 0.
    virtual int getDevLockStatusValue() = 0;

    /// Sets what starts recording and streaming: writes RecordStreamPreference/StartTriggerType.
    virtual void setStartRecordStreamTriggerType(int type) = 0;
    /// What starts recording and streaming: RecordStreamPreference/StartTriggerType. No store: 0.
    virtual int getStartRecordStreamTriggerType() = 0;
    /// Sets what stops recording and streaming: writes RecordStreamPreference/StopTriggerType.
    virtual void setStopRecordStreamTriggerType(int type) = 0;
    /// What stops recording and streaming: RecordStreamPreference/StopTriggerType. No store: 0.
    virtual int getStopRecordStreamTriggerType() = 0;

    /// Sets how the panel sorts sources: writes SourceSortPreference/SourceSortType.
    virtual void setSourceSortType(int type) = 0;
    /// How the panel sorts sources: SourceSortPreference/SourceSortType. No store: 0.
    virtual int getSourceSortType() = 0;

    /// Sets a flag of the panel's own, not interpreted here: writes JumpFlag/Jump.
    virtual void setJumpFlag(int flag) = 0;
    /// A flag of the panel's own, not interpreted here: JumpFlag/Jump. No store: 0.
    virtual int getJumpFlag() = 0;

    /// Whether the user sorted sources by hand: the file has a section SourceCustomSort. No store: false.
    virtual bool hasSourceCustomSort() = 0;
    /// Sets the place of one source in the user's own order: writes an entry of SourceCustomSort, at once and without
    /// the flush. Only a name of two parts joined by "_" comes back from getSourceCustomSort.
    virtual void setSourceCustomSort(const QString& name, int value) = 0;
    /// The user's own order of sources: the entries of SourceCustomSort whose name is two parts joined by "_"; others
    /// are skipped. None: empty. No store: empty.
    virtual std::vector<s_SourceCustomSort> getSourceCustomSort() = 0;
    /// Clears every entry of the named sections, at once and without the flush. Takes no lock, which is meant.
    virtual void removeGroups(const QStringList& groups) = 0;

    /// Sets the brightness of the panel's own screen: writes ScreenLight/ScreenLightValue.
    virtual void setScreenLight(int value) = 0;
    /// The brightness of the panel's own screen: ScreenLight/ScreenLightValue. No store: 0.
    virtual int getScreenLight() = 0;

    /// Sets the time-out of the knobs: writes KnobTimeOut/KnobTimeOutValue.
    virtual void setKnobTimeOut(int value) = 0;
    /// The time-out of the knobs: KnobTimeOut/KnobTimeOutValue; no unit is fixed here. No store: -1.
    virtual int getKnobTimeOut() = 0;

    /// Sets the time-out of leaving the multi-view: writes BackExitMVRTimeOut/BackExitMVRTimeOutValue.
    virtual void setBackExitMVRTimeOut(int value) = 0;
    /// The time-out of leaving the multi-view: BackExitMVRTimeOut/BackExitMVRTimeOutValue; no unit is fixed here. An
    /// absent or empty entry: 1500, nothing written. No store: 1500.
    virtual int getBackExitMVRTimeOut() = 0;
};

} // namespace LCD::MainConfig

#endif
