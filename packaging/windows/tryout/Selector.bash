# The file selector and the command line under Wine. packaging/windows/try-under-wine sources this; it uses functions and names
# of that script.
# shellcheck shell=bash disable=SC2034,SC2154,SC1003 # names of that script, and paths that end with a backslash

SELECTOR='^LSAdvisor File Selector$'
selector_checks=(selector_pathOrPatternTyped_listsWhatIsThere selector_wrongPathTyped_saysWhyAndStays
    selector_drivesAndFoldersPicked_showTheirFiles selector_filePicked_isOpened selector_mouse_picksFolderAndFile
    selector_savingOverABook_asksFirst parameters_quotedAsAWhole_areTaken)
# Places of rows of the lists, in the selector's window.
second_folder=(60 161) first_file_at=(290 92)
disk_of_books=$scratch/disk # becomes drive D: of this Windows

# Adds a second disk with a name, and a drive E: for removable disks that holds none.
add_drives() {
    mkdir -p "$disk_of_books/Old Books" "$books/Part Two"
    cp -- "$root/samples/Advice.IDA" "$disk_of_books/Disk.IDA"
    cp -- "$root/samples/Advice.IDA" "$disk_of_books/Old Books/Older.IDA"
    cp -- "$root/samples/Advice.IDA" "$books/Part Two/Sequel.IDA"
    printf 'Only a note.\r\n' >"$books/Notes.TXT"
    printf 'BOOKS\n' >"$disk_of_books/.windows-label"
    ln -s -- "$disk_of_books" "$WINEPREFIX/dosdevices/d:"
    ln -s -- "$scratch/no-disk" "$WINEPREFIX/dosdevices/e:"
    in_windows reg add 'HKLM\Software\Wine\Drives' /v d: /d hd /f >/dev/null
    in_windows reg add 'HKLM\Software\Wine\Drives' /v e: /d floppy /f >/dev/null
}

# The text of the focused box. Text of an earlier copy must not count, so it is overwritten first.
text_of_box() {
    in_windows 'C:\probe.exe' copy 'nothing was copied'
    key ctrl+a
    key ctrl+c
    in_windows 'C:\probe.exe' clipboard
}
path_in_selector() {
    key alt+p
    text_of_box
}
# enters TEXT: replaces the selector's text by a path or a pattern, and presses O.K.
enters() {
    key alt+p
    key ctrl+a
    write "$1"
    key Return
    sleep 0.5
}
# first_file: picks the first row of the list of files, and prints the path.
first_file() {
    key alt+f
    key End Home
    path_in_selector
}

# Message boxes copy their text to the clipboard, between lines of hyphens: title, text, buttons.
message() {
    in_windows 'C:\probe.exe' copy 'nothing was copied'
    key ctrl+c
    in_windows 'C:\probe.exe' clipboard | awk '/^-+$/ { part++; next } part == 2 || !part'
}
# says_and_stays WHAT TEXT: expects a box with that text; the selector stays open below it.
says_and_stays() {
    wait_for are_open 2 || return 0
    sleep 0.5
    same "$1" "$2" "$(message)"
    key Return
    wait_for are_open 1 || return 0
    goes_on "$SELECTOR"
}

# Opens the file form, and its selector.
browse() {
    run_program ''
    goes_on "$OPEN" || return 1
    opens "$SELECTOR" alt+b
}
leave_selector() {
    key Escape
    wait_for is_closed "$SELECTOR" || return 0
    goes_on "$OPEN" && key Escape
    wait_for is_closed "$OPEN" || return 0
    close_program
}

selector_pathOrPatternTyped_listsWhatIsThere() {
    browse || return 0
    same "the start" "$books_there\\*.IDA" "$(path_in_selector)"
    picture 20-selector
    same "the first book" "$books_there\\Advice.IDA" "$(first_file)"
    enters '*.txt'
    same "a pattern" "$books_there\\*.txt" "$(path_in_selector)"
    picture 21-selector-pattern
    same "the only text" "$books_there\\Notes.TXT" "$(first_file)"
    enters 'C:\'
    same "the root" 'C:\*.*' "$(path_in_selector)"
    picture 22-selector-root
    enters '*.exe'
    same "its only program" 'C:\probe.exe' "$(first_file)"
    enters "c:\\USERS\\$user\\"
    same "a folder" "C:\\USERS\\$user\\*.*" "$(path_in_selector)"
    enters 'Documents\My Books\*.ida'
    same "a folder in it" "C:\\USERS\\$user\\Documents\\My Books\\*.ida" "$(path_in_selector)"
    same "the first book by that way" "C:\\USERS\\$user\\Documents\\My Books\\Advice.IDA" "$(first_file)"
    leave_selector
}

selector_wrongPathTyped_saysWhyAndStays() {
    browse || return 0
    enters 'Missing.IDA'
    wait_for are_open 2 && picture 23-selector-missing
    says_and_stays "a missing file" 'File does not exist: missing.ida'
    enters 'C:\No Such\*.IDA'
    says_and_stays "a missing folder" 'Sorry, you cannot choose \no such\ due to error 76: Path not found'
    same "the folder goes on" "$books_there\\*.IDA" "$(path_in_selector)"
    enters 'F:\*.IDA'
    says_and_stays "no drive" 'Sorry, you cannot choose drive f: due to error 68: Device unavailable'
    key alt+d
    key e
    wait_for are_open 2 && picture 24-selector-no-disk
    says_and_stays "a drive without a disk" 'Sorry, you cannot choose drive e: due to error 71: Disk not ready'
    same "the drive goes on" "$books_there\\*.IDA" "$(path_in_selector)"
    same "its first book" "$books_there\\Advice.IDA" "$(first_file)"
    leave_selector
}

# Uses the keys of the lists. A drive opens its current folder; from there folders lead back to the root.
selector_drivesAndFoldersPicked_showTheirFiles() {
    browse || return 0
    key alt+d
    key d
    same "the other drive" 'D:\*.IDA' "$(path_in_selector)"
    picture 25-selector-drive
    same "its book" 'D:\Disk.IDA' "$(first_file)"
    key alt+l
    key Down
    key Return
    same "its folder" 'D:\Old Books\*.IDA' "$(path_in_selector)"
    same "the book there" 'D:\Old Books\Older.IDA' "$(first_file)"
    key alt+l
    key Home
    key Return
    same "its root again" 'D:\*.IDA' "$(path_in_selector)"
    key alt+d
    key c
    same "the first drive, where it was" "$books_there\\*.IDA" "$(path_in_selector)"
    leave_selector
}

# name_in_form: the name that Browse put into the file form.
name_in_form() {
    wait_for is_closed "$SELECTOR" || return 0
    goes_on "$OPEN" || return 0
    text_of_box
}
selector_filePicked_isOpened() {
    browse || return 0
    enters 'Part Two\*.IDA'
    same "the sequel" "$books_there\\Part Two\\Sequel.IDA" "$(first_file)"
    key Return
    same "a book below the folder" 'Part Two\Sequel.IDA' "$(name_in_form)"
    opens "$SELECTOR" alt+b || return 0
    enters 'd:disk.ida'
    same "a book elsewhere" 'D:\Disk.IDA' "$(name_in_form)"
    picture 26-selected
    key Return
    goes_on "$MAIN" && sleep 2
    picture 27-selected-opened
    same "the latest book" '*1; NAME=D:\Disk.IDA' "$(tr -d '\r' <"$settings/LSAdvisor.INI" | sed -n 3p)"
    close_program
}

# click TITLE X Y [BUTTONS]: clicks in the window of that title.
click() {
    xdotool mousemove --window "$(xdotool search --onlyvisible --name "$1" | head -n 1)" "$2" "$3" \
        click --repeat "${4:-1}" --delay 60 1
    sleep 0.7
}
selector_mouse_picksFolderAndFile() {
    browse || return 0
    enters 'D:\*.IDA'
    click "$SELECTOR" "${second_folder[@]}"
    same "the folder" 'D:\Old Books\*.IDA' "$(path_in_selector)"
    click "$SELECTOR" "${first_file_at[@]}"
    same "the file" 'D:\Old Books\Older.IDA' "$(path_in_selector)"
    click "$SELECTOR" "${first_file_at[@]}" 2
    same "the book" 'D:\Old Books\Older.IDA' "$(name_in_form)"
    key Escape
    wait_for is_closed "$OPEN" && close_program
}

selector_savingOverABook_asksFirst() {
    run_program Tour.IDA
    goes_on "$MAIN" && sleep 2
    key ctrl+s
    wait_for are_open 2 || return 0 # the book is not locked
    key alt+o
    goes_on "$SAVE" || return 0
    opens "$SELECTOR" alt+b || return 0
    enters 'Advice.IDA'
    wait_for are_open 2 || return 0
    sleep 0.5
    picture 28-selector-overwrite
    same "the question" 'File already exists.  Overwrite?' "$(message)"
    key Escape
    wait_for are_open 1 && goes_on "$SELECTOR" || return 0
    same "the path goes on" 'Advice.IDA' "$(path_in_selector)"
    key Escape
    wait_for is_closed "$SELECTOR" && goes_on "$SAVE" && key Escape
    wait_for is_closed "$SAVE" && close_program
    cmp "$root/samples/Advice.IDA" "$books/Advice.IDA" || fault "the book was changed"
}

topic_on_show() {
    key ctrl+a
    text_of_box | sed -n '/[^ ]/{s/^ *//;s/ *$//;p;q}'
}
# opens_with LINE TOPIC BOOK: shows the topic, and stores its settings in the folder that the line names.
opens_with() {
    rm -f -- "$drive/some folder"/*
    starts_with "$1"
    goes_on "$MAIN" || return 0
    sleep 2
    are_open 1 || fault "a message with $1: $(message)"
    same "the topic with $1" "$2" "$(topic_on_show)"
    same "the settings with $1" "*1; NAME=$books_there\\$3" "$(tr -d '\r' <"$drive/some folder/LSAdvisor.INI" | sed -n 3p)"
}
parameters_quotedAsAWhole_areTaken() {
    mkdir -p "$drive/some folder"
    opens_with 'Tour.IDA "/TOPIC=Opening a Book" "/INIDIR=C:\some folder"' 'Opening a Book' Tour.IDA
    picture 29-parameters
    close_program
    opens_with '"Tour.IDA" /topic=Keys "/inidir=C:\some folder\"' Keys Tour.IDA
    close_program
    opens_with 'Advice.IDA "/INIDIR=C:\some folder" /TOPIC="A Sick Houseplant"' 'A Sick Houseplant' Advice.IDA
    close_program
    # Without a book the form offers the latest one in that folder's settings.
    starts_with '"/INIDIR=C:\some folder"'
    goes_on "$OPEN" || return 0
    same "the latest book" "$books_there\\Advice.IDA" "$(text_of_box)"
    picture 30-parameters-only
    key Escape
    wait_for is_closed "$OPEN" && close_program
    [[ ! -e $books/LSAdvisor.INI ]] || fault "settings beside the book"
    rm -r -- "$drive/some folder"
}
