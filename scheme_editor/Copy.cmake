# Copying the schemes of one event source to others: the rule and the page's popup.
acs_library(SchemeCopy STATIC SOURCES
    ACSCopyModes.cpp ACSCopyModes.h
    ACSEventCopyToPopup.cpp ACSEventCopyToPopup.h ACSEventCopyToPopup.ui
    SchemeCopy.cpp SchemeCopy.h
    PUBLIC AlarmRecords AlarmLinkage SchemeEdits
    PRIVATE HostServices LXGUI SystemLibrary VantaComponent VantaModel VantaLogic)
