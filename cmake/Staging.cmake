# What `cmake --install BUILD --prefix DIR` makes of DIR: a whole AppDir, the folder that Pelorin
# runs in. The program and its data are replaced. Of everything that a user may change afterwards
# (Dos, DOSBox, mapper, the sample games) only what is missing is added; the rest is not touched.
#
# The texts come in the language PELORIN_LANGUAGE; those of another one are put over an installation
# by `cmake --install BUILD --prefix DIR --component language_NAME`.
#
# What needs making before it can be copied is made at build time below build/<preset>/stage:
#   text/<language>/  the texts of data/<language>, code page 949 with CR LF
#   add/              Dos and mapper, as they will stand in AppDir
#   samples/<name>/   a sample game, as it will stand in its folder below Games
set(PELORIN_LANGUAGE ko CACHE STRING "Language of the staged program: a folder of data/")
set(PELORIN_DOSBOX /usr/bin/dosbox CACHE FILEPATH "What DOSBox/<build>/dosbox links to")
set(PELORIN_DOSBOX_DEBUG /usr/bin/dosbox-debug CACHE FILEPATH "What dosbox_debug there links to")

set(stage ${CMAKE_CURRENT_BINARY_DIR}/stage)
set(staged_files)

# Makes one file below `stage` by the commands that follow.
macro(pelorin_stage staged source)
    get_filename_component(staged_folder ${stage}/${staged} DIRECTORY)
    add_custom_command(OUTPUT ${stage}/${staged}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${staged_folder}
        ${ARGN}
        DEPENDS ${source}
        VERBATIM)
    list(APPEND staged_files ${stage}/${staged})
endmacro()

# A text: UTF-8 with LF becomes code page 949 with CR LF.
function(pelorin_stage_text staged source)
    pelorin_stage(${staged} "${source};stagetext"
        COMMAND stagetext ${source} ${stage}/${staged}
        COMMAND ${CMAKE_COMMAND} -E touch ${stage}/${staged})
    set(staged_files ${staged_files} PARENT_SCOPE)
endfunction()

function(pelorin_stage_copy staged source)
    pelorin_stage(${staged} ${source}
        COMMAND ${CMAKE_COMMAND} -E copy ${source} ${stage}/${staged})
    set(staged_files ${staged_files} PARENT_SCOPE)
endfunction()

# All files of a folder but those below its src; those whose name matches `texts` are texts, the
# others are copied.
function(pelorin_stage_folder staged folder texts)
    file(GLOB_RECURSE names CONFIGURE_DEPENDS RELATIVE ${folder} ${folder}/*)
    list(FILTER names EXCLUDE REGEX "^src/")
    foreach(name IN LISTS names)
        if(name MATCHES "${texts}")
            pelorin_stage_text(${staged}/${name} ${folder}/${name})
        else()
            pelorin_stage_copy(${staged}/${name} ${folder}/${name})
        endif()
    endforeach()
    set(staged_files ${staged_files} PARENT_SCOPE)
endfunction()

file(GLOB languages CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}/data data/*/Language.dat)
list(TRANSFORM languages REPLACE "/.*" "")
if(NOT PELORIN_LANGUAGE IN_LIST languages)
    message(FATAL_ERROR "PELORIN_LANGUAGE: there is no data/${PELORIN_LANGUAGE}/Language.dat")
endif()
foreach(language IN LISTS languages)
    pelorin_stage_folder(text/${language} ${CMAKE_CURRENT_SOURCE_DIR}/data/${language} ".")
endforeach()
pelorin_stage_folder(add/mapper ${CMAKE_CURRENT_SOURCE_DIR}/mapper "^$")
pelorin_stage_folder(add/Dos ${CMAKE_CURRENT_SOURCE_DIR}/dos "\\.(TXT|BAT)$")

# DOS programs and what they read: a line of assembly.txt is a source, a tab and the place in AppDir.
find_program(NASM_EXECUTABLE nasm REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(STRINGS samples/assembly.txt assembly_lines ENCODING UTF-8 REGEX "^[^#].*\t")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS samples/assembly.txt)
foreach(line IN LISTS assembly_lines)
    string(REPLACE "\t" ";" fields ${line})
    list(GET fields 0 source)
    list(GET fields 1 place)
    set(staged add/${place})
    if(source MATCHES "^samples/([^/]+)/")
        string(REGEX REPLACE "^Games/[^/]+" samples/${CMAKE_MATCH_1} staged ${place})
    endif()
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/${source})
    get_filename_component(source_folder ${source} DIRECTORY)
    if(source MATCHES "\\.py$")
        file(GLOB scripts CONFIGURE_DEPENDS ${source_folder}/*.py)
        pelorin_stage(${staged} "${scripts}"
            COMMAND ${Python3_EXECUTABLE} -B ${source} ${stage}/${staged})
        continue()
    endif()
    string(MAKE_C_IDENTIFIER ${staged} depfile)
    set(depfile ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/stage_${depfile}.d)
    set(nasm ${NASM_EXECUTABLE} -f bin -Werror
        -I ${source_folder}/ -I ${CMAKE_CURRENT_SOURCE_DIR}/samples/lib/)
    # By a run of its own: the list that nasm 2.16 makes while it assembles lacks what is included.
    pelorin_stage(${staged} ${source}
        COMMAND ${nasm} -M -MF ${depfile} -MT ${stage}/${staged} ${source}
        COMMAND ${nasm} -o ${stage}/${staged} ${source}
        DEPFILE ${depfile})
endforeach()

set(sample_folders)
file(GLOB samples CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}/samples samples/*/folder.txt)
foreach(sample IN LISTS samples)
    get_filename_component(sample ${sample} DIRECTORY)
    pelorin_stage_folder(samples/${sample} ${CMAKE_CURRENT_SOURCE_DIR}/samples/${sample}/files
        "\\.(txt|conf)$|/Genre[KE]\\.dat$|/Extra\\.dat$")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS samples/${sample}/folder.txt)
    file(READ samples/${sample}/folder.txt folder)
    string(STRIP "${folder}" folder)
    string(APPEND sample_folders "pelorin_add_sample([==[${sample}]==] [==[${folder}]==])\n")
endforeach()

# What an earlier state of the sources staged must not reach an AppDir.
file(GLOB_RECURSE former_files ${stage}/*)
list(REMOVE_ITEM former_files ${staged_files})
if(former_files)
    file(REMOVE ${former_files})
endif()

add_custom_target(stage ALL DEPENDS ${staged_files})
configure_file(cmake/AddMissing.cmake.in AddMissing.cmake @ONLY)

install(SCRIPT ${CMAKE_CURRENT_BINARY_DIR}/AddMissing.cmake)
install(TARGETS Pelorin DESTINATION .)
foreach(language IN LISTS languages)
    configure_file(cmake/ChangeLanguage.cmake.in ChangeLanguage_${language}.cmake @ONLY)
    set(component COMPONENT language_${language})
    if(NOT language STREQUAL PELORIN_LANGUAGE)
        list(APPEND component EXCLUDE_FROM_ALL)
    endif()
    # The script still sees the language file that was there before.
    install(SCRIPT ${CMAKE_CURRENT_BINARY_DIR}/ChangeLanguage_${language}.cmake ${component})
    # File by file: installing a folder would reset the rights of the AppDir that stands.
    foreach(file IN LISTS staged_files)
        file(RELATIVE_PATH name ${stage}/text/${language} ${file})
        if(NOT name MATCHES "^\\.\\./")
            get_filename_component(folder ./${name} DIRECTORY)
            install(FILES ${file} DESTINATION ${folder} ${component})
        endif()
    endforeach()
endforeach()
