; Keys: menus and names take letters from the BIOS, the play asks which keys are held down.

kKeyEsc         equ 01h                 ; scan codes
kKeyBackspace   equ 0Eh
kKeyEnter       equ 1Ch
kKeyA           equ 1Eh
kKeyD           equ 20h
kKeyUp          equ 48h
kKeyLeft        equ 4Bh
kKeyRight       equ 4Dh
kKeyDown        equ 50h

TakeKeyboard:
        push    es
        mov     ax, 3509h
        int     21h
        mov     [old_keyboard], bx
        mov     [old_keyboard + 2], es
        pop     es
        mov     dx, OnKeyboard
        mov     ax, 2509h
        int     21h
        ret

ReleaseKeyboard:
        push    ds
        lds     dx, [old_keyboard]
        mov     ax, 2509h
        int     21h
        pop     ds
        ret

; The interrupt: notes what is held, and passes the code on to the BIOS.
OnKeyboard:
        push    ax
        push    bx
        in      al, 60h
        mov     bl, al
        and     bx, 7Fh
        test    al, 80h
        setz    [cs:key_held + bx]
        jnz     .pass
        mov     byte [cs:key_hit + bx], 1
.pass:  pop     bx
        pop     ax
        jmp     far [cs:old_keyboard]

; AH = scan code, AL = letter of the next key from the BIOS. Zero flag: there is none.
ReadKey:
        mov     ah, 1
        int     16h
        jz      .none
        xor     ah, ah
        int     16h
        test    ax, ax                  ; never zero
.none:  ret

; Forgets all keys that were hit but not used.
ForgetKeys:
        call    ReadKey
        jnz     ForgetKeys
        push    es
        push    ds
        pop     es
        mov     di, key_hit
        mov     cx, 128
        xor     al, al
        rep     stosb
        pop     es
        ret

; BX = scan code. Zero flag clear: held now, or hit since the last call.
KeyActs:
        mov     al, [key_held + bx]
        or      al, [key_hit + bx]
        mov     byte [key_hit + bx], 0
        ret

old_keyboard:   dd 0
key_held:       times 128 db 0
key_hit:        times 128 db 0
