# find_package(OvAppKit) makes OvAppKit::OvAppKit and OvFoundation::OvFoundation,
# to be linked by targets in Objective-C or Objective-C++. The platform's flags
# come along, as asked from its gnustep-config here.

if(NOT TARGET GNUstep::Base)
  include(${CMAKE_CURRENT_LIST_DIR}/GNUstep.cmake)
endif()
include(${CMAKE_CURRENT_LIST_DIR}/OvFoundationTargets.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/OvAppKitTargets.cmake)
