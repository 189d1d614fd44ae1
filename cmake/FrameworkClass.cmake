# Run as a script:
#   cmake -DNAME=Foo -DOUTPUT=dir "-DSOURCES=a.mm|b.mm" "-DHEADERS=A.h|B.h" -P FrameworkClass.cmake
# Writes three files that describe the framework, each read off its sources:
#   NSFramework_Foo.mm    the class by which the platform finds the framework of a class
#   Foo.exports           the linker's list of the public interface; everything else is local
#   Info-gnustep.plist    the framework's property list
# A file whose text would not change is left alone, so nothing is rebuilt for it.

function(write_if_changed path text)
  if(EXISTS "${path}")
    file(READ "${path}" old)
    if(old STREQUAL text)
      return()
    endif()
  endif()
  file(WRITE "${path}" "${text}")
endfunction()

string(REPLACE "|" ";" SOURCES "${SOURCES}")
string(REPLACE "|" ";" HEADERS "${HEADERS}")

set(classes "")
foreach(source IN LISTS SOURCES)
  file(STRINGS "${source}" lines REGEX "^@implementation[ \t]+[A-Za-z_0-9]+[ \t]*(//.*|\\{.*)?$")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^@implementation[ \t]+([A-Za-z_0-9]+).*$" "\\1" class "${line}")
    list(APPEND classes ${class})
  endforeach()
endforeach()
list(REMOVE_DUPLICATES classes)
list(SORT classes)

set(entries "")
set(plist_entries "")
foreach(class IN LISTS classes)
  string(APPEND entries "    @\"${class}\",\n")
  list(APPEND plist_entries "\"${class}\"")
endforeach()
list(JOIN plist_entries ", " plist_entries)

write_if_changed("${OUTPUT}/NSFramework_${NAME}.mm" "// Generated from the framework's sources.
#import <Foundation/Foundation.h>

@interface NSFramework_${NAME} : NSObject
+ (NSString *)frameworkVersion;
+ (NSString *const *)frameworkClasses;
@end

@implementation NSFramework_${NAME}
+ (NSString *)frameworkVersion {
  return @\"A\";
}
+ (NSString *const *)frameworkClasses {
  static NSString *const classes[] = {
${entries}    NULL};
  return classes;
}
@end
")

set(symbols "")
foreach(header IN LISTS HEADERS)
  file(STRINGS "${header}" lines REGEX "^@interface[ \t]+[A-Za-z_0-9]+[ \t]*:|^OV_EXPORT ")
  foreach(line IN LISTS lines)
    if(line MATCHES "^@interface[ \t]+([A-Za-z_0-9]+)")
      string(APPEND symbols "    __objc_class_name_${CMAKE_MATCH_1};\n    _OBJC_CLASS_${CMAKE_MATCH_1};\n")
    elseif(line MATCHES "([A-Za-z_0-9]+)[ \t]*\\(")
      string(APPEND symbols "    ${CMAKE_MATCH_1};\n")
    elseif(line MATCHES "([A-Za-z_0-9]+)[ \t]*;")
      string(APPEND symbols "    ${CMAKE_MATCH_1};\n")
    endif()
  endforeach()
endforeach()
write_if_changed("${OUTPUT}/${NAME}.exports" "{\n  global:\n    __objc_class_name_NSFramework_${NAME};\n${symbols}  local:\n    *;\n};\n")

write_if_changed("${OUTPUT}/Info-gnustep.plist" "{
  NSExecutable = \"${NAME}\";
  NSMainNibFile = \"\";
  NSPrincipalClass = \"${NAME}\";
  Classes = (${plist_entries});
}
")
