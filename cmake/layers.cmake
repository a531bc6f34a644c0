# The layers of the program: one library per folder, which only sees the folders below it.

# tonquill_layer(NAME USES LIBRARY... SOURCES FILE...): the static library of the current folder.
# Headers are included by their bare names. Layers above may also include what a layer links.
function(tonquill_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "USES;SOURCES")
    add_library(${name} STATIC ${layer_SOURCES})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON AUTOUIC ON AUTORCC ON
        AUTOUIC_SEARCH_PATHS "${CMAKE_CURRENT_SOURCE_DIR}")
    set(folders ${CMAKE_CURRENT_SOURCE_DIR})
    foreach(source IN LISTS layer_SOURCES)
        cmake_path(GET source PARENT_PATH folder)
        if(folder AND NOT folder MATCHES "^\\.\\.")
            list(APPEND folders ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES folders)
    target_include_directories(${name} PUBLIC
        ${folders}
        # The generated Ui_ headers, which class headers only forward-declare.
        ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name}
        PUBLIC ${layer_USES}
        PRIVATE $<BUILD_INTERFACE:tonquill-options>)
endfunction()
