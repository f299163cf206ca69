# Makes the releases of the AppStream description from CHANGELOG.md; what is not released is left out.

function plain(text) {
    gsub(/`/, "", text)
    gsub(/&/, "\\&amp;", text)
    gsub(/</, "\\&lt;", text)
    gsub(/>/, "\\&gt;", text)
    return text
}

function end_item() {
    if (item != "") print "          <li>" plain(item) "</li>"
    item = ""
}

function end_list() {
    end_item()
    if (in_list) print "        </ul>"
    in_list = 0
}

function end_release() {
    end_list()
    if (in_release) print "      </description>\n    </release>"
    in_release = 0
}

/^## / {
    end_release()
    if (match($0, /[0-9]+\.[0-9]+\.[0-9]+/)) {
        version = substr($0, RSTART, RLENGTH)
        printf "    <release version=\"%s\" date=\"%s\">\n      <description>\n", version, $NF
        in_release = 1
    }
    next
}

!in_release { next }

/^### / {
    end_list()
    print "        <p>" $2 ":</p>\n        <ul>"
    in_list = 1
    next
}

/^- / {
    end_item()
    item = substr($0, 3)
    next
}

/^  / {
    item = item " " substr($0, 3)
}

END { end_release() }
