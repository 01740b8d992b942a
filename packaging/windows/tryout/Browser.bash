# The web browser under Wine. packaging/windows/try-under-wine sources this after Selector.bash, as it uses functions of both.
# shellcheck shell=bash disable=SC2034,SC2154 # names of that script

browser_checks=(web_asked_writesThePageAndStartsTheBrowser help_noBrowserRegistered_isGivenToTheOneThatIsPicked)

# page_shown: the page that the browser was asked for. Each check removes the file first.
page_shown() {
    wait_for test -s "$drive/page.txt" || true
    cat "$drive/page.txt" 2>&1
}

web_asked_writesThePageAndStartsTheBrowser() {
    local page=$books/Lodestar_Ideas_Temp.htm
    rm -f -- "$drive/page.txt"
    run_program Tour.IDA
    goes_on "$MAIN" && sleep 2
    key alt+m
    same "the page" "$books_there\\Lodestar_Ideas_Temp.htm" "$(page_shown)"
    same "what it passes on" '<INPUT TYPE="Hidden" NAME="Topic" VALUE="Tour: Welcome">' "$(grep -a Hidden "$page" | tr -d '\r')"
    same "where to" '<FORM METHOD="POST" ACTION="http://www.lodestar-advisor.example/guide">' \
        "$(grep -a '<FORM' "$page" | tr -d '\r')"
    same "lines that end as they should" 23 "$(grep -ac $'\r$' "$page")"
    close_program
    rm -f -- "$page"
}

# Web pages are registered for a program that no longer exists.
help_noBrowserRegistered_isGivenToTheOneThatIsPicked() {
    in_windows reg add 'HKCU\Software\Classes\.htm' /ve /d GonePage /f >/dev/null
    pick_browser_for_help
    in_windows reg add 'HKCU\Software\Classes\.htm' /ve /d ProbePage /f >/dev/null
}
no_browser='Failed to open registry key <<HKEY_LOCAL_MACHINE\SOFTWARE\Classes\GonePage\shell\open\command>>. '
no_browser+='You may typed an invalid filetype, or you do not have an appropriate viewer program registered on your computer.'
find_browser='I need a web browser to display the information, but your registry does not have an unambiguous reference '
find_browser+='to a single browser. Do you want to help me find your web browser so that I can open it?'
pick_browser_for_help() {
    rm -f -- "$drive/page.txt"
    run_program Tour.IDA
    goes_on "$MAIN" && sleep 2
    key F1
    wait_for are_open 2 || return 0
    same "the registry's fault" "$no_browser" "$(message)"
    picture 31-no-browser
    key Return
    sleep 1
    wait_for are_open 2 || return 0
    same "the question" "$find_browser" "$(message)"
    picture 32-find-browser
    key Return
    goes_on "$SELECTOR" || return 0
    same "the start" "$books_there\\*.exe" "$(path_in_selector)"
    enters 'C:\*.exe'
    same "the program" 'C:\probe.exe' "$(first_file)"
    picture 33-browser-picked
    key Return
    same "the page" "$installed_there\\Lodestar_Reader.htm" "$(page_shown)"
    close_program
}
